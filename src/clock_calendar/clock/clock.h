// The desktop clock: its tables and limits. Its records stand in clock_records.h, that
// of a design in character/chara_records.h.
#pragma once

#include <cstdint>

#include "character/character_tables.h"
#include "clock_calendar/clock/clock_records.h"
#include "clock_calendar/clock/clock_strike.h"
#include "platform/types.h"

// --- Settings, kept in the settings file.

inline constexpr int kClockReservedCount = 3;
inline constexpr int kClockNone = 255;  // no design is selected

inline constexpr int kAlarmSlotCount = 5;

// --- Performances, kept in mirrell_ClcAlmPerFile.clc.

inline constexpr int kPerformanceMax = 50;
inline constexpr int kPerformanceDefaultCount = 3;

// In a state of its own: it is large, and all of it begins as zero.
struct PerformanceTableState {
  std::int32_t ClockPerformanceCount = 0;
  ClockPerformance ClockPerformances[kPerformanceMax] = {};
};
extern PerformanceTableState PerformanceTable;

// How many performances are in use, and the number of the one at a place among them;
// 0 for a place that there is not.
int PerformancesInUse();
int PerformanceAt(int place);
// The place of a number among them; -1 for one that is not in use.
int PerformancePlace(int number);

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

// --- Clock designs, kept in the character file.

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

// --- What a user may change of the designs, at the end of the calendar file.

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

struct ClockHandsState {
  ClockHandShape ClockHourHand = {};
  ClockHandShape ClockMinuteHand = {};
};
extern ClockHandsState ClockHands;

// Makes the wanted design the current one: takes its hands, centre, colours and
// strike tables, and turns the outlines. Nothing happens while the current one
// is the wanted one already. A number without a design becomes the current
// number all the same, with nothing to draw.
void ClockActivate();
// Activates afresh: the current number becomes the wanted one, the current one
// none, and the design is taken again.
void ClockReactivate();

// The design of that place; null when there is none.
const ClockDesignRow* ClockDesignAt(int place);

// Strike mode, repeat, sound flag and sound file as the design of that place has
// them. False, with the settings as they were, when there is no such design.
bool ClockDesignDefaults(int place, ClockStrikeSettings& settings);

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
  // kept: three numbers of the clock in the settings file are used by nothing.
  std::int32_t ClockReserved[kClockReservedCount] = {};
  // What the dialogs want to be shown; ClockActivate makes the design the current
  // one.
  std::int32_t ClockShowWanted = 0;
  std::int32_t ClockWanted = kClockNone;
  AlarmSlot ClockEvents[kAlarmSlotCount] = {};
  std::int32_t ClockListCount = 0;
  ClockListRow ClockList[kClockDesignMax] = {};
  std::int32_t ClockHandKind = -1;  // ClockHand; -1 while no design is in force
  Point ClockCentre = {};
  Colour ClockHandColour = 0;
  Colour ClockFaceColour = 0;  // never the hand's colour
  std::uint16_t ClockStrikeDelay[kStrikeSteps] = {};
  unsigned char ClockHourFigures[kStrikeHours][kStrikeSteps] = {};
  std::int32_t ClockHour = 0;    // 0 to 23
  std::int32_t ClockHour12 = 0;  // the same modulo 12
  std::int32_t ClockMinute = 0;
  // Slot (from 0) whose alarm is being shown, -1 for none.
  std::int32_t ClockAlarmSlot = -1;
  WindowHandle hClockWnd = nullptr;  // FlyingBat6
  std::int32_t comparedHour = -1;    // of the alarms' last look
  std::int32_t comparedMinute = -1;
  int firedLast = -1;      // slot that fired last; -1 for none
  ClockStrikePlay strike;  // the performance of the hour
  int adustSecond = -1;    // of the day, that WatchAdustDlg shows; -1 for none
};
extern ClockState Clock;

// What the settings say of the hourly performance, and taking it over.
ClockStrikeSettings ClockStrikeSettingsNow();
void ClockStrikeSettingsSet(const ClockStrikeSettings& settings);

// Takes over the five alarms, and forgets which of them fired last.
void ClockAlarmsSet(const AlarmSlot (&slots)[kAlarmSlotCount]);

// Compares the time with the five alarms, once for each minute. Returns 1 when
// an alarm matches; ClockAlarmSlot is the slot then.
int ClockAlarmCheck(int hour, int minute);
// Forgets the minute that was compared last.
void ClockAlarmCheckReset();

// Chooses what the clock notice plays without an alarm: the number of a performance.
void ClockEventChoose(int number);

// --- Timed events, for as long as the program runs.

inline constexpr int kTimedMax = 24;

struct TimedState {
  std::int32_t TimedCount = 0;
  TimedEvent TimedRows[kTimedMax] = {};
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

// Gives the clock a place on the screen; its window moves when it is opened anew.
void ClockPlaceSet(std::int32_t x, std::int32_t y);

// Whether the clock is to stand on the desktop, and in which design; ClockWantedTake
// makes that so, ClockWantedDrop goes back to what is.
void ClockWantedSet(bool show, int design);
void ClockWantedTake();
void ClockWantedDrop();

// How many rows of ClockList are in use.
void ClockListCountSet(std::int32_t count);
