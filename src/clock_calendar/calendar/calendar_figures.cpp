// The two figures that move over the calendar's page.
#include <algorithm>

#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/calendar/calendar_picture.h"
#include "clock_calendar/calendar/calendar_size.h"
#include "services/random.h"
#include "services/tick_step.h"
#include "world/world_list.h"

namespace {

enum Direction {
  kStill,
  kLeft,
  kRight,
  kUp,
  kDown,
  kUpLeft,
  kUpRight,
  kDownLeft,
  kDownRight,
  kRandom,
};

struct Way {
  int x;
  int y;
  Direction opposite;
};
constexpr Way kWays[] = {
    {0, 0, kStill},       {-1, 0, kRight},    {1, 0, kLeft},     {0, -1, kDown},  {0, 1, kUp},
    {-1, -1, kDownRight}, {1, -1, kDownLeft}, {-1, 1, kUpRight}, {1, 1, kUpLeft},
};
const Way& WayOf(int direction) {
  return kWays[direction > kStill && direction < kRandom ? direction : kStill];
}

// Where a figure comes in from that has left the page.
constexpr std::int32_t kOutside = -300;

const CalenMonthPicture& MonthPicture() {
  return Calendar.CalenMonths[CalenYearShown()][Calendar.CalenMonthPos].picture;
}

int DirectionCode(int figure) {
  return MonthPicture().directions[figure];
}

// A direction from the settings file holds as long as it lies on the line that the
// month gives the figure.
int DirectionOnLine(int direction, int code) {
  if (code == kRandom || direction == code || direction == WayOf(code).opposite) return direction;
  return code < kRandom ? code : kStill;
}

std::int32_t* PositionOf(int figure, int copy) {
  return figure == 0 ? Calendar.CalenFigPos1[copy] : Calendar.CalenFigPos2[copy];
}

// True if a step along one axis would lead out of 0 to `limit`.
bool Leaves(std::int32_t at, int way, std::int32_t step, int limit) {
  return (way < 0 && at < step) || (way > 0 && std::int64_t{at} + step > limit);
}

bool MoveCopy(int figure, int copy) {
  unsigned char& direction = Calendar.CalenFigDir[figure][copy];
  if (DirectionCode(figure) == kRandom) direction = static_cast<unsigned char>(1 + RandomBelow(8));
  const std::int32_t step = Calendar.CalenFigStep[figure];
  Way way = WayOf(direction);
  if ((way.x == 0 && way.y == 0) || step <= 0) return false;
  std::int32_t* position = PositionOf(figure, copy);
  const bool leavesX = Leaves(position[0], way.x, step, CalenLayoutWidth());
  const bool leavesY = Leaves(position[1], way.y, step, CalenPictureHeight());
  if (leavesX || leavesY) {
    if (Calendar.CalenFigTurn[figure] == 0) {
      // kept: whichever edge a moving figure leaves by, it goes on from the same place, -300.
      if (leavesX) position[0] = kOutside;
      if (leavesY) position[1] = kOutside;
      return true;
    }
    direction = static_cast<unsigned char>(way.opposite);
    way = WayOf(direction);
  }
  // bounded: positions and steps of moving figures may come from a file; a sum stays a number.
  const auto moved = [step](std::int32_t at, int by) {
    return static_cast<std::int32_t>(
        std::clamp<std::int64_t>(std::int64_t{at} + std::int64_t{step} * by, -0x7FFFFFFF, 0x7FFFFFFF));
  };
  position[0] = moved(position[0], way.x);
  position[1] = moved(position[1], way.y);
  return true;
}

// A figure whose moves are counted down to.
bool Counts(int figure) {
  return Calendar.CalenPictureOn != 0 && CalendarPictures.CalenFigures[figure].picture &&
         Calendar.CalenFigPeriod[figure] > 0;
}

// The places of a character's named frames, up to `most`; returns how many.
int NamedFrames(int chara, int (&places)[kWorldFrames], int most) {
  int count = 0;
  for (int frame = 0; frame < kWorldFrames && count < most; ++frame) {
    if (WorldFrameName(chara, frame + 1)[0] != '\0') places[count++] = frame;
  }
  return count;
}

}  // namespace

int CalenFigureChoice(int chara, int stored, int mode) {
  constexpr int kTenFrames = 10;
  constexpr int kTwelveFrames = 12;
  constexpr int kCycleYear = 2008;
  int places[kWorldFrames];
  if (mode == 1 && NamedFrames(chara, places, kTenFrames) == kTenFrames) {
    // kept: in the choice of a figure for a cycle of ten years the first year is multiplied, not
    // added, and so has no part in it.
    const std::int64_t number = std::int64_t{Calendar.CalenFirstYear} * 2000 + CalenYearShown();
    return places[(number % kTenFrames + kTenFrames) % kTenFrames];
  }
  if (mode == 2 && NamedFrames(chara, places, kTwelveFrames) == kTwelveFrames) {
    const int year = 2000 + Calendar.CalenYears[CalenYearShown()];
    return places[year >= kCycleYear ? (year - kCycleYear) % kTwelveFrames
                                     : kTwelveFrames - 1 - (kCycleYear - 1 - year) % kTwelveFrames];
  }
  return stored;
}

int CalenPeriodOf(int code) {
  constexpr int kPeriods[] = {50, 100, 1000, 3000, 6000, 18000, 30000};
  return code >= 1 && code <= 6 ? kPeriods[code] : kPeriods[0];
}

int CalenStepOf(int code, int height) {
  constexpr int kTenths[] = {0, 1, 3, 5, 7, 10, 20, 30, 40, 50, 100};
  return code >= 1 && code <= 10 ? height * kTenths[code] / 10 : 0;
}

void CalenFiguresSetup() {
  const CalenMonthPicture& month = MonthPicture();
  for (int figure = 0; figure < kFigureCount; ++figure) {
    Calendar.CalenFigPeriod[figure] = CalenPeriodOf(month.periods[figure]);
    Calendar.CalenFigStep[figure] =
        CalenStepOf(month.steps[figure], DibHeight(CalendarPictures.CalenFigures[figure].picture));
    Calendar.figureWaits[figure] = Calendar.CalenFigPeriod[figure];
    if (Calendar.CalenFigCount[figure] == 0) CalenFigurePlace(figure);
    for (unsigned char& direction : Calendar.CalenFigDir[figure]) {
      direction = static_cast<unsigned char>(DirectionOnLine(direction, DirectionCode(figure)));
    }
  }
}

void CalenFigurePlace(int figure) {
  const CalenDefinition& definition = CalenSelectedDefinition();
  const int code = DirectionCode(figure);
  Calendar.CalenFigCount[figure] = 1;
  Calendar.CalenFigPhase[figure][0] = 0;
  Calendar.CalenFigDir[figure][0] = static_cast<unsigned char>(code == kRandom ? RandomBelow(kRandom) : code);
  std::int32_t* position = PositionOf(figure, 0);
  position[0] = definition.startX[Calendar.CalenMonthPos][figure];
  position[1] = definition.startY[Calendar.CalenMonthPos][figure];
}

bool CalenFiguresMove() {
  bool moved = false;
  for (int figure = 0; figure < kFigureCount; ++figure) {
    if (!Counts(figure)) continue;
    if (--Calendar.figureWaits[figure] > 0) continue;
    Calendar.figureWaits[figure] = Calendar.CalenFigPeriod[figure];
    const int copies = std::min<int>(Calendar.CalenFigCount[figure], kFigureCopies);
    for (int copy = 0; copy < copies; ++copy) {
      Calendar.CalenFigPhase[figure][copy] = Calendar.CalenFigPhase[figure][copy] == 0 ? 1 : 0;
      moved = MoveCopy(figure, copy) || moved;
    }
  }
  return moved;
}

int CalenFiguresDue() {
  int due = kTickNever;
  for (int figure = 0; figure < kFigureCount; ++figure) {
    if (Counts(figure)) due = std::min(due, std::max<int>(Calendar.figureWaits[figure], 1));
  }
  return due;
}

Point CalenFigureAt(int figure) {
  const CalenMonthPicture& month = MonthPicture();
  const std::int32_t* at = PositionOf(figure, 0);
  return {at[0] + month.correctX[figure], at[1] + month.correctY[figure]};
}
