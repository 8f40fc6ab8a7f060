#include <cstring>
#include <stdexcept>
#include <string>

#include "clock_calendar/calendar/calendar.h"
#include "newdata/cast.h"
#include "newdata/holidays.h"
#include "newdata/pixels.h"
#include "newdata/tables.h"

namespace {

constexpr int kFirstYear = 2022;  // the holidays have been these since then
constexpr int kLastYear = 2099;

constexpr Rgb kHolidayColour{230, 0, 0};
constexpr Rgb kTickerColour{0, 70, 160};

// The letters of the pages: small enough for the smallest page.
constexpr int kLetterHeight = 12;
constexpr int kLetterWidth = 6;
constexpr int kLetterWeight = 400;
constexpr char kLetterFace[] = "ＭＳ ゴシック";

void PutColour(unsigned char* to, const Rgb& colour) {
  to[0] = colour.red;
  to[1] = colour.green;
  to[2] = colour.blue;
}

void FillDefinition(CalenDefinition& definition, int year) {
  definition = CalenDefinition{};
  definition.valid = 1;
  const std::vector<HolidayRule> rules = HolidayRulesFor(year);
  for (std::size_t i = 0; i < rules.size(); ++i) {
    definition.ruleKinds[i] = static_cast<std::uint8_t>(rules[i].kind);
    definition.ruleParameters[i] = {static_cast<std::uint8_t>(rules[i].month),
                                    static_cast<std::uint8_t>(rules[i].value)};
  }
  PutColour(definition.colour1, kHolidayColour);
  PutColour(definition.colour2, kHolidayColour);
  definition.design = 1;
  definition.font.height = kLetterHeight;
  definition.font.width = kLetterWidth;
  definition.font.weight = kLetterWeight;
  static_assert(sizeof kLetterFace <= kFontFaceSize);
  std::memcpy(definition.font.face, kLetterFace, sizeof kLetterFace);
  PutColour(definition.tickerColour, kTickerColour);
}

// --- The pictures of the months

// Characters of the cast.
constexpr int kFlier = 21;
constexpr int kCloud = 22;
constexpr int kDigits = 23;
constexpr int kRedDigits = 24;
constexpr int kTree = 25;

// A figure that moves: only to the right and down does it come in again from the far side.
struct Mover {
  int chara;
  int direction;  // codes of the month picture
  int period;
  int step;
  int x;
  int y;
};
constexpr int kRight = 2;
constexpr int kDownRight = 8;

// The looks of each of the three calendars.
struct Looks {
  Mover movers[kFigureCount];
  int treeX;
  int treeY;
};
constexpr Looks kLooks[] = {
    {{{kFlier, kRight, 0, 3, 10, 70}, {kCloud, kRight, 1, 2, 30, 12}}, 120, 96},
    {{{kCloud, kRight, 1, 2, 60, 10}, {kFlier, kDownRight, 0, 2, 20, 20}}, 16, 90},
    {{{kFlier, kRight, 0, 2, 0, 40}, {kCloud, kRight, 0, 1, 90, 16}}, 110, 92},
};

// March to May, June to August, September to November, December to February: 0 to 3.
int SeasonOf(int month) {
  return (month + 10) % kMonthsOfYear / 3;
}

void FillMonthPicture(CalenMonthPicture& picture, const Looks& looks, int month) {
  const int season = SeasonOf(month);
  picture = CalenMonthPicture{};
  picture.pictureOn = 1;
  const char* background = Backgrounds().at(static_cast<std::size_t>(season)).file;
  std::strncpy(picture.background, background, sizeof picture.background - 1);
  PutColour(picture.backColour, kWhite);
  for (int figure = 0; figure < kFigureCount; ++figure) {
    const Mover& mover = looks.movers[figure];
    picture.charas[figure] = static_cast<std::uint16_t>(mover.chara);
    picture.figures[figure] = static_cast<std::uint8_t>(season);
    picture.directions[figure] = static_cast<std::uint8_t>(mover.direction);
    picture.periods[figure] = static_cast<std::uint8_t>(mover.period);
    picture.steps[figure] = static_cast<std::uint8_t>(mover.step);
  }
}

void PutFigure(CalenDefinition& definition, int month, int place, int chara, int x, int y) {
  definition.charas[month][place] = static_cast<std::uint16_t>(chara);
  definition.figures[month][place] = static_cast<std::uint8_t>(SeasonOf(month));
  definition.startX[month][place] = x;
  definition.startY[month][place] = y;
}

void FillFigures(CalenDefinition& definition, const Looks& looks) {
  for (int month = 0; month < kMonthsOfYear; ++month) {
    for (int figure = 0; figure < kFigureCount; ++figure) {
      const Mover& mover = looks.movers[figure];
      PutFigure(definition, month, figure, mover.chara, mover.x, mover.y);
    }
    PutFigure(definition, month, kFigureCount, kTree, looks.treeX, looks.treeY);
  }
}

// The week's calendar has a ticker with the notes of a week; the day's calendar writes its
// days with figures.
void FillSpecials() {
  constexpr int kWeekCalendar = 1;
  constexpr int kDayCalendar = 2;
  constexpr int kPauseOfTen = 9;
  constexpr int kPageFoot = 2;
  CalenDefinition& week = Calendar.CalenDefinitions[kWeekCalendar];
  week.tickerFlags = kTickerOn | kTickerWeek;
  week.tickerPause = kPauseOfTen;
  week.tickerSpeed = 1;
  week.tickerPlace = kPageFoot;
  CalenDefinition& day = Calendar.CalenDefinitions[kDayCalendar];
  day.design = 2;
  day.figureSet1 = kDigits;
  day.figureSet2 = kRedDigits;
}

// Every frame of the sticker characters is a sticker. The list holds a character
// by its number from 1 and a frame from 0.
void FillStickers() {
  CalenStickerList& stickers = Calendar.CalenStickers;
  stickers = CalenStickerList{};
  for (const CastMember* member : CastOf(Role::Sticker)) {
    for (std::size_t frame = 0; frame < member->frames.size() && stickers.count < kStickerMax; ++frame) {
      stickers.charas[stickers.count] = static_cast<std::uint16_t>(member->number);
      stickers.figures[stickers.count] = static_cast<std::uint8_t>(frame);
      ++stickers.count;
    }
  }
}

// Flags the holidays of a year of the working array that the rules pass over.
void FlagRemainingHolidays(int yearIndex, int year) {
  const std::int32_t shown = Calendar.CalenYearPos;
  Calendar.CalenYearPos = yearIndex;
  for (const MonthDay& date : HolidaysOf(year)) {
    if (CalenHolidayRule(yearIndex, date.month - 1, date.day - 1, HolidayUse::Display) == 0) {
      CalenHolidayFlagSet(yearIndex, date.month - 1, date.day - 1, true);
    }
  }
  Calendar.CalenYearPos = shown;
}

}  // namespace

void FillCalendars(int year) {
  if (year < kFirstYear || year > kLastYear) {
    throw std::runtime_error("calendars can begin from " + std::to_string(kFirstYear) + " to " +
                             std::to_string(kLastYear));
  }
  CalenYearsSet(year - 2000);
  Calendar.CalenYearCount = 1;
  Calendar.CalenYearPos = 0;
  Calendar.CalenSel = 0;
  Calendar.CalenKind = Calendar.CalenKinds[Calendar.CalenSel];
  Calendar.CalenPictureOn = 1;
  std::memset(Calendar.CalenBackColour, 0, sizeof Calendar.CalenBackColour);
  PutColour(Calendar.CalenBackColour, kWhite);
  FillStickers();
  for (int i = 0; i < Calendar.CalenCount; ++i) {
    FillDefinition(Calendar.CalenDefinitions[i], year);
    FillFigures(Calendar.CalenDefinitions[i], kLooks[i]);
  }
  FillSpecials();
  for (int i = 0; i < kCalenYearMax; ++i) {
    CalenYearInit(i);
    if (year + i <= kLastYear) FlagRemainingHolidays(i, year + i);
  }
  for (int i = 0; i < Calendar.CalenCount; ++i) {
    std::memcpy(Calendar.CalenSheets[i], Calendar.CalenMonths[0], sizeof Calendar.CalenSheets[i]);
    for (int month = 0; month < kMonthsOfYear; ++month)
      FillMonthPicture(Calendar.CalenSheets[i][month].picture, kLooks[i], month);
  }
  CalenUseSheet();
}
