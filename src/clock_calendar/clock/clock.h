// The desktop clock: its records, tables and limits.
//
// Records that travel as blocks through the files are byte arrays here; the
// accessors below each table of offsets are the only way into them. Numbers
// inside a record stand low byte first.
#pragma once

#include <cstdint>

#include "character/character_tables.h"
#include "platform/types.h"
#include "services/big_endian.h"

// --- Settings, kept in the settings file.

inline constexpr int kClockSoundSize = 300;
inline constexpr int kClockReservedCount = 3;
inline constexpr int kClockNone = 255;  // no design is selected

enum ClockStrike { kStrikeNever = 0, kStrikeEveryHour = 1, kStrikeAtTwelve = 2 };

// --- Alarm slot, 144 bytes, kept in the settings file.
//
// offset  size  field
//      0     1  enabled
//      1     1  hour, 0 to 23
//      2     1  minute, 0 to 59
//      3     1  spare
//      4     2  performance, number of a record from 1; 0 for none
//      6   100  comment, terminated
//    106    38  spare

inline constexpr int kAlarmSlotCount = 5;
inline constexpr int kAlarmSlotSize = 144;
inline constexpr int kAlarmSlotEnabled = 0;
inline constexpr int kAlarmSlotHour = 1;
inline constexpr int kAlarmSlotMinute = 2;
inline constexpr int kAlarmSlotPerformance = 4;
inline constexpr int kAlarmSlotComment = 6;
inline constexpr int kAlarmCommentSize = 100;

struct AlarmSlot {
  bool enabled;
  int hour;
  int minute;
  int performance;  // from 1; 0 for none
  char comment[kAlarmCommentSize];
};

// One slot (0 to 4) out of the table, and into it. A comment without its
// terminator is cut to 99 bytes.
AlarmSlot AlarmSlotGet(int slot);
void AlarmSlotPut(int slot, const AlarmSlot& value);

// --- Performance record, 2008 bytes, of mirrell_ClcAlmPerFile.clc.
//
// offset  size  field
//      0     1  flags: nonzero in use, bit 0 shows the selected character
//      4     4  figure mode: nonzero shows figures
//     24    80  20 durations
//    424  1500  sound file name, terminated
//   1924     4  reserved, 0
//   1928    80  title
// The rest is zero.

inline constexpr int kPerformanceMax = 50;
inline constexpr int kPerformanceSize = 2008;
inline constexpr int kPerformanceFlags = 0;
inline constexpr int kPerformanceFigureMode = 4;
inline constexpr int kPerformanceDurations = 24;
inline constexpr int kPerformanceStepCount = 20;
inline constexpr int kPerformanceSound = 424;
inline constexpr int kPerformanceSoundSize = 1500;
inline constexpr int kPerformanceTitle = 1928;
inline constexpr int kPerformanceTitleSize = 80;
inline constexpr int kPerformanceDefaultCount = 3;
inline constexpr unsigned kPerformanceCharacter = 1;  // bit of the flags

inline unsigned PerformanceFlags(const unsigned char* record) {
  return record[kPerformanceFlags];
}
inline std::int32_t PerformanceFigureMode(const unsigned char* record) {
  return static_cast<std::int32_t>(GetLE32(record + kPerformanceFigureMode));
}
inline std::int32_t PerformanceDuration(const unsigned char* record, int step) {
  return static_cast<std::int32_t>(GetLE32(record + kPerformanceDurations + 4 * step));
}
// Texts of a record; `to` takes the whole field and a terminator.
void PerformanceSound(const unsigned char* record, char (&to)[kPerformanceSoundSize + 1]);
void PerformanceTitle(const unsigned char* record, char (&to)[kPerformanceTitleSize + 1]);

// Reads mirrell_ClcAlmPerFile.clc; after a good read the default records and
// their count stand in the table all the same. Returns FileStatus: 0, -1 when
// the file cannot be opened, -2 for wrong or short content.
int ClockAlarmFileRead();
// Puts the default records into the table and writes the file. Returns
// FileStatus.
int ClockAlarmFileWrite();
// Reads the file and, where that fails, makes it new from the defaults. Returns
// what the last of the two gave.
int ClockAlarmFileLoad();
int ClockAlarmFilePath(char* buffer, int size);

// --- Clock design record, 464 bytes, of the character file.
//
// offset  size  field
//      0     1  hand kind, ClockHand
//      1     1  repeat flag
//      2     1  strike mode
//      3     1  sound flag
//      4     2  hour hand length, pixels
//      6     2  minute hand length
//      8     2  centre x, signed
//     10     2  centre y, signed
//     12     3  hand colour: red, green, blue
//     15     3  face colour
//     18    14  strike delay table: 7 numbers of ticks
//     32    91  hour figures: 13 rows of 7, frame numbers from 1, 0 ends
//    123     1  spare
//    124   256  sound file name
//    380    64  design name; empty: the name of its character
//    444    20  spare

inline constexpr int kDesignHand = 0;
inline constexpr int kDesignRepeat = 1;
inline constexpr int kDesignStrikeMode = 2;
inline constexpr int kDesignSoundOn = 3;
inline constexpr int kDesignHourLength = 4;
inline constexpr int kDesignMinuteLength = 6;
inline constexpr int kDesignCentreX = 8;
inline constexpr int kDesignCentreY = 10;
inline constexpr int kDesignHandColour = 12;
inline constexpr int kDesignFaceColour = 15;
inline constexpr int kDesignStrikeDelay = 18;
inline constexpr int kDesignHourFigures = 32;
inline constexpr int kDesignSound = 124;
inline constexpr int kDesignSoundSize = 256;
inline constexpr int kDesignName = 380;
inline constexpr int kDesignNameSize = 64;
inline constexpr int kStrikeSteps = 7;
inline constexpr int kStrikeHours = 13;

enum ClockHand {
  kHandLine = 0,
  kHandDiamond = 1,
  kHandArrow = 2,
  kHandTriangle = 3,
  kHandDot = 4,
  kHandBar = 5,
  kHandAmPm = 6,    // digital, twelve hours
  kHandDigits = 7,  // digital
};
constexpr bool ClockIsDigital(int hand) {
  return hand == kHandAmPm || hand == kHandDigits;
}

// A design record with its fields laid out; texts are terminated.
struct ClockDesignFields {
  int hand;
  bool repeat;
  int strikeMode;
  bool soundOn;
  int hourLength;
  int minuteLength;
  int centreX;
  int centreY;
  unsigned char handColour[3];  // red, green, blue
  unsigned char faceColour[3];
  std::uint16_t strikeDelay[kStrikeSteps];
  unsigned char hourFigures[kStrikeHours][kStrikeSteps];
  char sound[kDesignSoundSize];
  char name[kDesignNameSize];
};
ClockDesignFields ClockDesignGet(const unsigned char* record);
// The bytes without a field of their own stay as they are.
void ClockDesignPut(unsigned char* record, const ClockDesignFields& fields);

// --- Clock design list record, 104 bytes, at the end of the calendar file: what
// a user may change of a design.
//
// offset  size  field
//      0     1  repeat flag
//      1     1  strike mode
//      2     1  sound flag
//      3     1  spare
//      4    50  sound file name
//     54    50  design name

inline constexpr int kClockListSize = 104;
inline constexpr int kClockListRepeat = 0;
inline constexpr int kClockListStrikeMode = 1;
inline constexpr int kClockListSoundOn = 2;
inline constexpr int kClockListSound = 4;
inline constexpr int kClockListName = 54;
inline constexpr int kClockListTextSize = 50;

// Copies the five values of a list record (name, sound file, the three flags)
// into the design of the same place. A design without a list record stays as it
// is.
void ClockDesignTakeListValues(int place);
// The reverse, for a new data set: one list record for each design.
void ClockListTakeDesigns();

// --- The design in force.

inline constexpr int kHourPositions = 120;
inline constexpr int kMinutePositions = 60;
inline constexpr int kHandPoints = 4;
inline constexpr int kHandDotRadius = 4;

enum class HandForm {
  None,
  Line,     // from point 0 to point 1
  Arrow,    // lines from point 0 to 1, and from 1 to 2 and to 3
  LineDot,  // a line, with a dot of kHandDotRadius around point 1
  Filled,   // a polygon
};

// A hand, turned once to all its positions; the points count from the centre of
// the dial, y downwards.
struct ClockHandShape {
  HandForm form;
  int pointCount;
  Point points[kHourPositions][kHandPoints];
};

// Makes the wanted design the current one: takes its hands, centre, colours and
// strike tables, and turns the outlines. Nothing happens while the current one
// is the wanted one already. A number without a design becomes the current
// number all the same, with nothing to draw.
void ClockActivate();
// Activates afresh: the current number becomes the wanted one, the current one
// none, and the design is taken again.
void ClockReactivate();

// Sets strike mode, repeat, sound flag and sound file as the design of that
// place has them. False when there is no such design.
bool ClockDesignDefaults(int place);

// The name of a design, or that of its character where it has none; empty when
// there is no such design. At most 64 bytes.
void ClockDesignName(int place, char (&to)[kDesignNameSize + 1]);

// --- The time on the dial.

// Takes a time over. Returns the need to redraw: 2 for another hour of the dial
// (in the AM/PM design: of the day), 1 for another minute, 0 for none.
int ClockTimeTake(int hour, int minute);

// Places in the points of the hands.
int ClockHourPosition(int hour12, int minute);
int ClockMinutePosition(int minute);

inline constexpr int kClockTextSize = 16;
// The text of a digital design for an hour of the day.
void ClockTimeText(int hand, int hour, int minute, char (&to)[kClockTextSize]);

// --- The hourly performance.

// The frame number of the step in play; 0 for none.
int ClockStrikeFigure();

// The clock's part of a tick, while its window is open. Returns 1 when the
// window must be drawn again.
int ClockTickCheck(int hour, int minute);

// Ends a performance.
void ClockStrikeClear();

// --- Alarms.

struct ClockState {
  std::int32_t ClockStrikeMode = 0;           // ClockStrike, or what only a design can set
  std::int32_t ClockStrikeSel = 0;            // 1: the performance repeats as often as the hour counts
  std::int32_t ClockSoundOn = 0;              // 1: the performance plays ClockSoundName
  char ClockSoundName[kClockSoundSize] = {};  // a file of the folder "\サウンド"
  std::int32_t ClockShow = 0;                 // the clock stands on the desktop
  std::int32_t ClockDesign = kClockNone;      // place in ClockDesigns, kClockNone for none
  std::int32_t ClockX = 0;
  std::int32_t ClockY = 0;
  // Kept in the file and used by nothing.
  std::int32_t ClockReserved[kClockReservedCount] = {};
  // What the dialogs want to be shown; ClockActivate makes the design the current
  // one.
  std::int32_t ClockShowWanted = 0;
  std::int32_t ClockWanted = kClockNone;
  unsigned char ClockEvents[kAlarmSlotCount][kAlarmSlotSize] = {};
  std::int32_t ClockPerformanceCount = 0;
  unsigned char ClockPerformances[kPerformanceMax][kPerformanceSize] = {};
  std::int32_t ClockListCount = 0;
  unsigned char ClockList[kClockDesignMax][kClockListSize] = {};
  std::int32_t ClockHandKind = -1;  // ClockHand; -1 while no design is in force
  Point ClockCentre = {};
  Colour ClockHandColour = 0;
  Colour ClockFaceColour = 0;  // never the hand's colour
  ClockHandShape ClockHourHand = {};
  ClockHandShape ClockMinuteHand = {};
  std::uint16_t ClockStrikeDelay[kStrikeSteps] = {};
  unsigned char ClockHourFigures[kStrikeHours][kStrikeSteps] = {};
  std::int32_t ClockHour = 0;    // 0 to 23
  std::int32_t ClockHour12 = 0;  // the same modulo 12
  std::int32_t ClockMinute = 0;
  bool ClockStrikeOn = false;
  std::int32_t ClockStrikeStep = 0;     // 0 to 6
  std::int32_t ClockStrikeRepeats = 0;  // passes left
  // Slot (from 0) whose alarm is being shown, -1 for none.
  std::int32_t ClockAlarmSlot = -1;
  WindowHandle hClockWnd = nullptr;  // FlyingBat6
};
extern ClockState Clock;

// Compares the time with the five alarms, once for each minute. Returns 1 when
// an alarm matches; ClockAlarmSlot is the slot then.
int ClockAlarmCheck(int hour, int minute);
// Forgets the minute that was compared last.
void ClockAlarmCheckReset();
// Forgets which slot fired last, so that any may fire again.
void ClockAlarmForget();

// --- Timed events, rows of 138 bytes, for as long as the program runs.
//
// offset  size  field
//      0     1  enabled
//      1     1  spare
//      2     2  hour
//      4     2  minute
//      6     2  second
//      8   128  comment
//    136     2  spare

inline constexpr int kTimedMax = 24;
inline constexpr int kTimedSize = 138;
inline constexpr int kTimedEnabled = 0;
inline constexpr int kTimedHour = 2;
inline constexpr int kTimedMinute = 4;
inline constexpr int kTimedSecond = 6;
inline constexpr int kTimedComment = 8;
inline constexpr int kTimedCommentSize = 128;

struct TimedEvent {
  bool enabled;
  int hour;
  int minute;
  int second;
  char comment[kTimedCommentSize];
};

struct TimedState {
  std::int32_t TimedCount = 0;
  unsigned char TimedRows[kTimedMax][kTimedSize] = {};
  // The rows in the order of their times, as their numbers from 0.
  std::int32_t TimedOrder[kTimedMax] = {};
};
extern TimedState Timed;

TimedEvent TimedGet(int row);
// Adds a row behind the others. Returns its number, -1 when all 24 are taken.
int TimedAdd(const TimedEvent& event);
// False for a row that is not there.
bool TimedChange(int row, const TimedEvent& event);
// Deletes a row; those behind it move up by one.
bool TimedDelete(int row);
