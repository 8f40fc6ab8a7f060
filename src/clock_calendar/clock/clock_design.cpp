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

int SignedLE16(const unsigned char* from) {
  return static_cast<std::int16_t>(GetLE16(from));
}

// Copies a text field that may lack its terminator.
void TextFromField(char* to, std::size_t size, const void* field, std::size_t fieldSize) {
  const char* text = static_cast<const char*>(field);
  std::size_t length = TextLength(text, fieldSize);
  if (length > size - 1) length = TextPrefix(text, size - 1);
  std::memcpy(to, text, length);
  std::memset(to + length, 0, size - length);
}

void TextToField(void* field, std::size_t fieldSize, const char* text) {
  TextFromField(static_cast<char*>(field), fieldSize, text, std::strlen(text));
}

}  // namespace

ClockDesignFields ClockDesignGet(const unsigned char* record) {
  ClockDesignFields fields{};
  fields.hand = record[kDesignHand];
  fields.repeat = record[kDesignRepeat] != 0;
  fields.strikeMode = record[kDesignStrikeMode];
  fields.soundOn = record[kDesignSoundOn] != 0;
  fields.hourLength = GetLE16(record + kDesignHourLength);
  fields.minuteLength = GetLE16(record + kDesignMinuteLength);
  fields.centreX = SignedLE16(record + kDesignCentreX);
  fields.centreY = SignedLE16(record + kDesignCentreY);
  std::memcpy(fields.handColour, record + kDesignHandColour, sizeof fields.handColour);
  std::memcpy(fields.faceColour, record + kDesignFaceColour, sizeof fields.faceColour);
  for (int step = 0; step < kStrikeSteps; ++step) {
    fields.strikeDelay[step] = GetLE16(record + kDesignStrikeDelay + 2 * step);
  }
  std::memcpy(fields.hourFigures, record + kDesignHourFigures, sizeof fields.hourFigures);
  TextFromField(fields.sound, sizeof fields.sound, record + kDesignSound, kDesignSoundSize);
  TextFromField(fields.name, sizeof fields.name, record + kDesignName, kDesignNameSize);
  return fields;
}

void ClockDesignPut(unsigned char* record, const ClockDesignFields& fields) {
  record[kDesignHand] = static_cast<unsigned char>(fields.hand);
  record[kDesignRepeat] = fields.repeat ? 1 : 0;
  record[kDesignStrikeMode] = static_cast<unsigned char>(fields.strikeMode);
  record[kDesignSoundOn] = fields.soundOn ? 1 : 0;
  PutLE16(record + kDesignHourLength, static_cast<std::uint16_t>(fields.hourLength));
  PutLE16(record + kDesignMinuteLength, static_cast<std::uint16_t>(fields.minuteLength));
  PutLE16(record + kDesignCentreX, static_cast<std::uint16_t>(fields.centreX));
  PutLE16(record + kDesignCentreY, static_cast<std::uint16_t>(fields.centreY));
  std::memcpy(record + kDesignHandColour, fields.handColour, sizeof fields.handColour);
  std::memcpy(record + kDesignFaceColour, fields.faceColour, sizeof fields.faceColour);
  for (int step = 0; step < kStrikeSteps; ++step) {
    PutLE16(record + kDesignStrikeDelay + 2 * step, fields.strikeDelay[step]);
  }
  std::memcpy(record + kDesignHourFigures, fields.hourFigures, sizeof fields.hourFigures);
  TextToField(record + kDesignSound, kDesignSoundSize, fields.sound);
  TextToField(record + kDesignName, kDesignNameSize, fields.name);
}

void ClockDesignTakeListValues(int place) {
  ClockDesignRow* row = DesignAt(place);
  if (!row || place >= Clock.ClockListCount) return;
  const unsigned char* list = Clock.ClockList[place];
  ClockDesignFields fields = ClockDesignGet(row->record);
  fields.repeat = list[kClockListRepeat] != 0;
  fields.strikeMode = list[kClockListStrikeMode];
  fields.soundOn = list[kClockListSoundOn] != 0;
  TextFromField(fields.sound, sizeof fields.sound, list + kClockListSound, kClockListTextSize);
  TextFromField(fields.name, sizeof fields.name, list + kClockListName, kClockListTextSize);
  ClockDesignPut(row->record, fields);
}

void ClockDesignsTakeListValues() {
  for (int place = 0; place < CharaTables.ClockDesignCount; ++place) ClockDesignTakeListValues(place);
}

void ClockListTakeDesigns() {
  std::memset(Clock.ClockList, 0, sizeof Clock.ClockList);
  for (Clock.ClockListCount = 0; DesignAt(Clock.ClockListCount); ++Clock.ClockListCount) {
    const ClockDesignFields fields = ClockDesignGet(CharaTables.ClockDesigns[Clock.ClockListCount].record);
    unsigned char* list = Clock.ClockList[Clock.ClockListCount];
    list[kClockListRepeat] = fields.repeat ? 1 : 0;
    list[kClockListStrikeMode] = static_cast<unsigned char>(fields.strikeMode);
    list[kClockListSoundOn] = fields.soundOn ? 1 : 0;
    TextToField(list + kClockListSound, kClockListTextSize, fields.sound);
    TextToField(list + kClockListName, kClockListTextSize, fields.name);
  }
}

namespace {

// Makes the wanted design the current one; of none there is nothing to draw.
void TakeWanted() {
  Clock.ClockDesign = Clock.ClockWanted;
  ClockDesignFields fields{};
  const ClockDesignRow* row = DesignAt(Clock.ClockDesign);
  if (row) fields = ClockDesignGet(row->record);
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
  Turn(HourOutline(Clock.ClockHandKind, fields.hourLength), kHourPositions, Clock.ClockHourHand);
  Turn(MinuteOutline(Clock.ClockHandKind, fields.minuteLength), kMinutePositions, Clock.ClockMinuteHand);
}

}  // namespace

void ClockActivate() {
  if (Clock.ClockDesign != Clock.ClockWanted) TakeWanted();
}

void ClockReactivate() {
  Clock.ClockWanted = Clock.ClockDesign;
  TakeWanted();
}

bool ClockDesignDefaults(int place) {
  const ClockDesignRow* row = DesignAt(place);
  if (!row) return false;
  const ClockDesignFields fields = ClockDesignGet(row->record);
  Clock.ClockStrikeMode = fields.strikeMode;
  Clock.ClockStrikeSel = fields.repeat ? 1 : 0;
  Clock.ClockSoundOn = fields.soundOn ? 1 : 0;
  TextFromField(Clock.ClockSoundName, sizeof Clock.ClockSoundName, fields.sound, sizeof fields.sound);
  return true;
}

void ClockDesignName(int place, char (&to)[kDesignNameSize + 1]) {
  to[0] = '\0';
  const ClockDesignRow* row = DesignAt(place);
  if (!row) return;
  const ClockDesignFields fields = ClockDesignGet(row->record);
  TextCopy(to, sizeof to, fields.name[0] != '\0' ? fields.name : WorldCharaName(row->number));
}
