// Clock designs: their records, and the one in force.
#include <cmath>
#include <cstring>

#include "character/character_file.h"
#include "character/character_tables.h"
#include "clock_calendar/clock/clock.h"
#include "services/text.h"
#include "world/world_list.h"

namespace {

constexpr double kPi = 3.14159265358979323846;

struct Outline {
  HandForm form;
  int count;
  Point points[kHandPoints];
};

Outline Line(HandForm form, int length) {
  return {form, 2, {{0, 0}, {0, -length}}};
}

Outline Diamond(int length) {
  constexpr int kWidth = 3;
  return {HandForm::Filled, 4, {{kWidth, -kWidth}, {0, -length}, {-kWidth, -kWidth}, {0, 0}}};
}

Outline HourOutline(int hand, int length) {
  switch (hand) {
    case kHandLine:
      return Line(HandForm::Line, length);
    case kHandDiamond:
      return Diamond(length);
    case kHandArrow:
      return {HandForm::Arrow, 4, {{0, 0}, {0, -length}, {4, 4 - length}, {-4, 4 - length}}};
    case kHandTriangle:
      return {HandForm::Filled, 3, {{2, -length / 3}, {0, -length}, {-2, -length / 3}}};
    case kHandDot:
      return Line(HandForm::LineDot, length);
    case kHandBar:
      return {HandForm::Filled, 4, {{-2, 0}, {-2, -length}, {2, -length}, {2, 0}}};
    default:
      return {HandForm::None, 0, {}};
  }
}

Outline MinuteOutline(int hand, int length) {
  switch (hand) {
    case kHandLine:
    case kHandArrow:
    case kHandDot:
    case kHandBar:
      return Line(HandForm::Line, length);
    case kHandDiamond:
      return Diamond(length);
    default:
      return {HandForm::None, 0, {}};
  }
}

// Turns an outline clockwise to each of `positions` places of the dial.
void Turn(const Outline& outline, int positions, ClockHandShape& shape) {
  shape.form = outline.form;
  shape.pointCount = outline.count;
  for (int position = 0; position < positions; ++position) {
    const double angle = 2 * kPi * position / positions;
    const double sine = std::sin(angle);
    const double cosine = std::cos(angle);
    for (int i = 0; i < outline.count; ++i) {
      const Point& from = outline.points[i];
      shape.points[position][i] = {static_cast<int>(std::lround(from.x * cosine - from.y * sine)),
                                   static_cast<int>(std::lround(from.x * sine + from.y * cosine))};
    }
  }
}

// The design of a place in the table; null outside it.
ClockDesignRow* DesignAt(int place) {
  return place >= 0 && place < CharaTables.ClockDesignCount && place < kClockDesignMax
             ? &CharaTables.ClockDesigns[place]
             : nullptr;
}

// Fills an array with a text of fewer than `size` bytes, never half a pair, and with
// zeros behind it.
template <std::size_t N>
void TextPut(char (&to)[N], const char* text, std::size_t size = N) {
  std::memset(to, 0, N);
  const std::size_t length = std::strlen(text);
  std::memcpy(to, text, length < size ? length : TextPrefix(text, size - 1));
}

}  // namespace

void ClockDesignTakeListValues(int place) {
  ClockDesignRow* row = DesignAt(place);
  if (!row || place >= Clock.ClockListCount) return;
  const ClockListRow& list = Clock.ClockList[place];
  ClockDesignRecord& design = row->record;
  design.repeat = list.repeat != 0 ? 1 : 0;
  design.strikeMode = list.strikeMode;
  design.soundOn = list.soundOn != 0 ? 1 : 0;
  TextPut(design.sound, list.sound);
  TextPut(design.name, list.name);
}

void ClockDesignsTakeListValues() {
  for (int place = 0; place < CharaTables.ClockDesignCount; ++place) ClockDesignTakeListValues(place);
}

void ClockListTakeDesigns() {
  for (ClockListRow& row : Clock.ClockList) row = ClockListRow{};
  for (Clock.ClockListCount = 0; DesignAt(Clock.ClockListCount); ++Clock.ClockListCount) {
    const ClockDesignRecord& design = CharaTables.ClockDesigns[Clock.ClockListCount].record;
    ClockListRow& list = Clock.ClockList[Clock.ClockListCount];
    list.repeat = design.repeat != 0 ? 1 : 0;
    list.strikeMode = design.strikeMode;
    list.soundOn = design.soundOn != 0 ? 1 : 0;
    // A text of the list ends inside its field.
    TextPut(list.sound, design.sound, kClockListTextSize);
    TextPut(list.name, design.name, kClockListTextSize);
  }
}

namespace {

// Makes the wanted design the current one; of none there is nothing to draw.
void TakeWanted() {
  Clock.ClockDesign = Clock.ClockWanted;
  const ClockDesignRow* row = DesignAt(Clock.ClockDesign);
  const ClockDesignRecord fields = row ? row->record : ClockDesignRecord{};
  Clock.ClockHandKind = row ? fields.hand : -1;
  Clock.ClockCentre = {fields.centreX, fields.centreY};
  const unsigned char* hand = fields.handColour;
  const unsigned char* face = fields.faceColour;
  Clock.ClockHandColour = MakeColour(hand[0], hand[1], hand[2]);
  Clock.ClockFaceColour = MakeColour(face[0], face[1], face[2]);
  if (Clock.ClockHandColour == Clock.ClockFaceColour) {
    Clock.ClockFaceColour = MakeColour(255U - face[0], 255U - face[1], 255U - face[2]);
  }
  std::memcpy(Clock.ClockStrikeDelay, fields.strikeDelay, sizeof Clock.ClockStrikeDelay);
  std::memcpy(Clock.ClockHourFigures, fields.hourFigures, sizeof Clock.ClockHourFigures);
  Turn(HourOutline(Clock.ClockHandKind, fields.hourLength), kHourPositions, ClockHands.ClockHourHand);
  Turn(MinuteOutline(Clock.ClockHandKind, fields.minuteLength), kMinutePositions, ClockHands.ClockMinuteHand);
}

}  // namespace

void ClockActivate() {
  if (Clock.ClockDesign != Clock.ClockWanted) TakeWanted();
}

void ClockReactivate() {
  Clock.ClockWanted = Clock.ClockDesign;
  TakeWanted();
}

const ClockDesignRow* ClockDesignAt(int place) {
  return DesignAt(place);
}

bool ClockDesignDefaults(int place, ClockStrikeSettings& settings) {
  const ClockDesignRow* row = DesignAt(place);
  if (!row) return false;
  const ClockDesignRecord& fields = row->record;
  settings.mode = fields.strikeMode;
  settings.repeat = fields.repeat != 0 ? 1 : 0;
  settings.soundOn = fields.soundOn != 0 ? 1 : 0;
  TextPut(settings.sound, fields.sound);
  return true;
}

void ClockDesignName(int place, char (&to)[kDesignNameSize + 1]) {
  to[0] = '\0';
  const ClockDesignRow* row = DesignAt(place);
  if (!row) return;
  const ClockDesignRecord& fields = row->record;
  TextCopy(to, sizeof to, fields.name[0] != '\0' ? fields.name : WorldCharaName(row->number));
}
