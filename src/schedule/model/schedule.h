// The schedule on display and the copy of the executing one: their state. The files of
// this folder write it; others read it, or call one of the functions here and beside.
#pragma once

#include "schedule/model/scl_records.h"

inline constexpr int kPlanKindCount = 2;
inline constexpr int kPlanTitleSize = 129;

// Bits of SclDirtyFlags.
inline constexpr unsigned kSclTableChanged = 1;
inline constexpr unsigned kSclSettingsChanged = 2;

// SclExecMark.
enum class SclMark {
  None = 0,     // the schedule on display is not the executing one
  Chosen = 2,   // chosen, not yet saved under a name
  Running = 1,  // the executing one, as its file has it
};

// The copy that is carried out.
struct SclExecCopy {
  std::int32_t count;
  SclDate start;
  SclWorkDayRow rows[kSclRowCount];
  char title[kSclTitleSize];
  SclItemRec items[kSclItemMax];
};

struct ScheduleState {
  // kept: the settings file holds the name of a default schedule, empty for none, which
  // nothing asks for.
  char DefaultSclName[kSclPathSize] = {};
  // kept: a new data set names the study plan (0) and the training plan (1), and nothing
  // shows these names: each new plan begins with a title of its own.
  char PlanTitles[kPlanKindCount][kPlanTitleSize] = {};

  // --- The schedule on display
  SclHeaderState SclHeader = {};
  SclItemRec SclItemTable[kSclItemMax] = {};
  char SclCurrentFile[kSclPathSize] = {};  // empty for a new schedule
  // kept: only setting or clearing the execution mark counts as a change of the schedule; the
  // window asks nothing after lines were edited.
  unsigned SclDirtyFlags = 0;
  char SclMapFile[kSclPathSize] = {};
  std::uint16_t SclMapColumn[kSclItemMax] = {};  // from 1, 0 for none
  std::uint16_t SclMapRow[kSclItemMax] = {};
  // A plan has been converted since this was taken back.
  bool SclConverted = false;

  // --- The executing one
  SclMark SclExecMark = SclMark::None;
  bool SclExecActive = false;  // there is one
  char SclExecFile[kSclPathSize] = {};
  SclExecCopy SclExecTable = {};
  bool SclAlarmFlag = false;  // some item of the copy has hours and an alarm
};
extern ScheduleState Schedule;

// --- The start of the program

// Hours 8 to 18 for all days and 31 items, which files may overwrite.
void SclDefaults();

// --- A new schedule

// Resets to a new schedule from `today` on: the day's hours by the kind, every work row
// 10 hours from 8 to 18, 31 items, no title, the start today at 8; no file, no mark.
// Only the first 200 of the 1000 items are cleared.
void SclNewDefaults(int year, int month, int day);
// The command of the new schedule: kind 1, then the defaults from the local date.
void SclNew();

// Refreshes the ends of work rows: min(begin + length, 24).
void SclRowEndsRefresh(SclWorkDayRow (&rows)[kSclRowCount]);

// --- Ways into the state for other rooms. An index is held inside its table.

SclItemRec& SclItem(int index);
void SclKindSet(int kind);                 // 1 for every new or converted schedule
void SclCountSet(int count);               // held between 0 and 1000
SclWorkDayRow (&SclRows())[kSclRowCount];  // the live work rows
SclDate& SclStart();
char (&SclTitle())[kSclTitleSize];
void SclCurrentFileSet(const char* path);
void SclDirtyRaise(unsigned bits);
void SclDirtyClear(unsigned bits);
void SclConvertedSet(bool converted);
void SclMapFileSet(const char* path);
void SclMapPlaceSet(int index, int column, int row);

// --- A plan becomes the schedule on display

// Clears all 1000 items, takes the title and the work rows over, and refreshes the rows'
// ends; the count is 0.
void SclConversionBegin(const char* title, const SclWorkDayRow (&rows)[kSclRowCount]);
// No file and no mark any more; SclConverted is set.
void SclConversionEnd();
