// The desktop calendars: their records, tables and limits.
//
// There are up to 30 calendars. Each keeps a sheet (one year of month blocks),
// and a definition (holiday rules, stickers, looks). What is on show is not a
// sheet but the working array of up to three years, CalenMonths.
//
// Months count from 0, days from 0, years are two digits; Monday is 0.
#pragma once

#include <cstdint>

#include "clock_calendar/calendar/calendar_records.h"
#include "platform/time.h"
#include "platform/types.h"
#include "services/scl_date.h"

inline constexpr int kCalenYearMax = 3;
inline constexpr int kCalenDayMax = 31;   // days of a month
inline constexpr int kFigureCopies = 30;  // copies of each moving figure that the settings hold

// Rule kinds: the low five bits, and two flags. A byte of 128 or more is passed
// over.
inline constexpr unsigned kRuleKindMask = 31;
inline constexpr unsigned kRuleLeapEarlier = 32;  // a day earlier in a leap year
inline constexpr unsigned kRuleNoSubstitute = 64;
inline constexpr unsigned kRuleSkipped = 128;
inline constexpr unsigned kRuleDate = 1;
inline constexpr unsigned kRuleNthWeekday = 2;
inline constexpr unsigned kRuleEveryWeekday = 3;         // to 9, Monday to Sunday
inline constexpr unsigned kRuleEverySecondWeekday = 11;  // to 17

inline constexpr unsigned kTickerOn = 1;
inline constexpr unsigned kTickerWeek = 128;  // today and the next six days

// --- Stickers.

// The stickers in use, 0 to 100, whatever the list says.
int CalenStickerCount();
// Character (number + 1, 0 for none) and figure of a sticker from 0; 0 and 0
// beyond the list.
void CalenSticker(int place, int* chara, int* figure);

// --- All calendars, kept in mirrell_calen_file.dcd.

inline constexpr int kCalenSettingsCount = 8;  // the calendars that the settings file names too

enum CalenPageKind { kPageMonth = 0, kPageWeek = 1, kPageDay = 2 };

// --- Ways into the tables. An index out of a file is held inside its table.

int CalenSelected();  // CalenSel, 0 if it is no calendar's place
CalenDefinition& CalenSelectedDefinition();
int CalenYearShown();  // CalenYearPos, 0 if it is no place of the working array

// The place of a two-digit year in the span of the calendar, -1 outside it.
int CalenSpanIndex(int year);
// The holiday flag of a day; false outside the tables.
bool CalenHolidayFlag(int yearIndex, int month, int day);
void CalenHolidayFlagSet(int yearIndex, int month, int day, bool holiday);
// A day's note, terminated; empty outside the tables.
void CalenNoteGet(int yearIndex, int month, int day, char (&to)[kNoteSize + 1]);
// Up to 127 bytes of a note. False when the day's reads so already, a longer one as far as
// that.
bool CalenNoteSet(int yearIndex, int month, int day, const char* note);

// --- Years.

// First start: three calendars of one year from this year on, their years built,
// and the names that a new data set has.
void CalenStartDefaults();
// Names and page kinds of the first eight calendars; a name that is there stays.
void CalenNameDefaults();
// Sets the first year and the list of years, with 100 in place of a year of 100
// or more.
void CalenYearsSet(int firstYear);
// The years that a span from `firstYear` may have: 1 to 3, and not past 2099.
int CalenSpanLength(int firstYear, int wanted);
// Another span: its years, their month tables, and the first year on display.
void CalenSpanSet(int firstYear, int length);
// Builds a year of the working array afresh: lengths, weekdays, each Sunday a
// holiday, no notes.
void CalenYearInit(int yearIndex);
// Works out the lengths and weekdays of all months of the working array for the
// years of the list. Notes stay; the flags of Sundays move with the weekdays.
void CalenYearsRebuild();
// Copies the selected calendar's sheet over each year of the working array, but
// for the holiday flags and notes, and forces its picture switch on.
void CalenUseSheet();

// --- The calendar file.

int CalenFilePath(char* buffer, int size);
// Reads all calendars. Returns 0; -1 (FileStatus -1 or -2) when the file cannot
// be opened or ends in its magic; -2 for a wrong magic or short month blocks. A
// failed read leaves the tables as they were.
int CalenFileRead();
// Copies the first year of the working array into the selected sheet and writes
// all calendars. Returns FileStatus: 0, -1 cannot create, -2 short write.
int CalenFileWrite();

// Takes the definition of the selected calendar into the display state: the
// ticker, the stickers and the pictures of the month of today. The span stays: a
// year outside it is not put on display. Runs after each read of the file and with
// each choice of a calendar.
void CalenTakeDefinition();

// --- Holidays by rule.

enum class HolidayUse {
  Schedule,  // without substitute holidays
  Display,   // with them
};
// 0 no holiday, 1 one by date, 2 one by weekday.
int CalenHolidayRule(int yearIndex, int month, int day, HolidayUse use);

// --- The ticker, a strip of text that runs over the page.

// Takes the ticker's settings from the selected calendar's definition.
void CalenTickerSetup();

// --- The month on show.

// Asks for today's date and puts its month on display, and its year if the span has it: for
// a dialog that opens without the window.
void CalenTodayTake();
// Puts the year and month of today on display, moving the span there if it is over, and
// loads the pictures if they are not. The calendar window calls it when it opens.
void CalenShowToday();
// The day of today, from 0, when its month is the one on display; else -1.
int CalenTodayShown();
// Called at each change of the month on show: a year on display outside the span
// becomes the first of the span; then the month's pictures are loaded, and its
// figures begin to move from their start.
void CalenPrepareMonth();

// --- The tick.

// Takes a new date over from the tick's time and moves the figures. Returns 1 when the calendar must
// be drawn again.
int CalenTickCheck();

// --- Announcing notes.

inline constexpr int kNoteDays = 3;  // today, tomorrow, the day after

// A note that waits to be announced.
struct CalenNote {
  bool due;
  std::int32_t year;  // two digits
  // kept: month and day of a note to be announced share one place, and the day is the last to
  // be put there; both numbers of the announced date are this one + 1.
  std::int32_t monthAndDay;
  char text[kNoteSize + 1];
};
struct CalendarState {
  CalenStickerList CalenStickers = {};
  std::int32_t CalenCount = 0;
  char CalenNames[kCalenMax][kCalenNameSize] = {};
  unsigned char CalenKinds[kCalenMax] = {};     // CalenPageKind
  unsigned char CalenParts[kCalenMax] = {};     // kept: a byte of each calendar is used by nothing
  unsigned char CalenPictures[kCalenMax] = {};  // picture switch
  CalenMonth CalenSheets[kCalenMax][kMonthsOfYear] = {};
  CalenMonthChoices CalenSheetFlags[kCalenMax][kMonthsOfYear] = {};
  CalenDefinition CalenDefinitions[kCalenMax] = {};
  std::int32_t CalenSel = 0;  // the selected calendar, 0 to 29
  // The working array, and the records of each of its months.
  CalenMonth CalenMonths[kCalenYearMax][kMonthsOfYear] = {};
  CalenMonthChoices CalenMonthFlags[kCalenYearMax][kMonthsOfYear] = {};
  unsigned char CalenYears[kCalenYearMax] = {};  // the years of the working array, 100 for none
  std::int32_t CalenShow = 0;                    // the calendar stands on the desktop
  std::int32_t CalenYearPos = 0;                 // year on display, place in CalenYears
  std::int32_t CalenFirstYear = 0;
  std::int32_t CalenYearCount = 0;  // 1 to 3
  std::int32_t CalenKind = 0;       // page kind of the selected calendar
  std::int32_t CalenX = 0;
  std::int32_t CalenY = 0;
  std::int32_t CalenPageSize = 0;  // 0 to 2
  std::int32_t CalenNoteMode = 0;  // announces notes: 0 never, 1 that day, 2 and 3 one and two days before
  std::int32_t CalenNearNote = 0;  // 1: the next notes stand under the page
  std::int32_t CalenPictureOn = 0;
  unsigned char CalenBackColour[4] = {};  // red, green, blue, spare
  unsigned char CalenFigPhase[kFigureCount][kFigureCopies] = {};
  unsigned char CalenFigCount[kFigureCount] = {};
  std::int32_t CalenFigPos1[kFigureCopies][2] = {};  // x, y
  std::int32_t CalenFigPos2[kFigureCopies][2] = {};
  std::int32_t CalenFigPeriod[kFigureCount] = {};
  std::int32_t CalenFigStep[kFigureCount] = {};
  // kept: nothing but a settings file makes a moving figure turn back at an edge.
  std::int32_t CalenFigTurn[kFigureCount] = {};
  unsigned char CalenFigDir[kFigureCount][kFigureCopies] = {};
  // The size of the calendar's page, for the layout of the windows.
  std::int32_t CalenW = 0;
  std::int32_t CalenH = 0;
  bool CalenTickerOn = false;
  std::int32_t CalenTickerReach = 0;        // days from today on, 1 or 7
  std::int32_t CalenTickerStep = 0;         // pixels a tick
  std::int32_t CalenTickerPause = 0;        // rests of 2000 ticks between two runs
  unsigned char CalenTickerColour[3] = {};  // red, green, blue
  std::int32_t CalenTickerPlace = 0;        // 0 to 4 down the window
  std::int32_t CalenMonthPos = 0;           // the month on display, 0 to 11
  CalenNote CalenNotes[kNoteDays] = {};
  WindowHandle hCalenWnd = nullptr;  // FlyingBat3
  std::int32_t CalenDayOffset = 0;   // the week and day page's distance from today, in days
  std::int32_t CalenMemoDay = 0;     // the day of the memo panel, from 1; 0 for none
  std::int32_t CalenPointedDay = 0;  // the day under the pointer, from 1; 0 for none
  // The two hit tables: where the cell of each day stands in the window, -1 for none; and
  // the size of a cell, 0 by 0 before the first painting.
  std::int32_t CalenHitX[kCalenDayMax] = {};
  std::int32_t CalenHitY[kCalenDayMax] = {};
  std::int32_t CalenHitWidth = 0;
  std::int32_t CalenHitHeight = 0;
  // The days with notes from today onward, as the last painting has found them.
  std::int32_t CalenNearDays[kCalenDayMax] = {};
  std::int32_t CalenNearCount = 0;
  std::int32_t tickerRests = 0;      // of the pause that runs
  std::int32_t tickerTicks = 0;      // of the rest that runs
  std::int32_t tickerPosition = 0;   // steps that the text has run
  std::int32_t CalenClickedDay = 0;  // the day of the popup menu, from 1; 0 for none
  std::int32_t figureWaits[kFigureCount] = {};
  bool monthIsOver = false;    // another one is to be put on display when no dialog edits this one
  SclDate notesLookedAt = {};  // the day that the marks are of
  bool notesDone[kNoteDays] = {};
};
extern CalendarState Calendar;

// Looks on the date of the tick's time for a note as CalenNoteMode asks and puts it into CalenNotes. Returns
// 1 when there is one, and again until it has been taken. A day's note that has been taken comes back only on
// another date.
int CalenNoteCheck();
// True while a note waits in CalenNotes.
bool CalenNoteWaits();
// Whether the check has nothing more to find on this day.
bool CalenNotesAreDone(const LocalTime& now);
// Takes the first waiting note out of CalenNotes, to be announced by command 2294. Returns its place, -1 for
// none.
int CalenNoteTake();

// Gives the calendar a place on the screen; its window moves when it is opened anew.
void CalenPlaceSet(std::int32_t x, std::int32_t y);

// The popup menu's day, from 1; 0 for none.
void CalenClickedDaySet(std::int32_t day);

// Makes another calendar (from 0) the selected one: its page kind, its sheet over the
// working array, its definition. A place that no calendar has changes nothing.
void CalenSelect(int place);

// Takes over into the first year of the working array what of the selected calendar's
// sheet is no longer as in `before`: the holiday flags and the notes of its days. For a
// calendar file that another program has written.
void CalenSheetChangesTake(const CalenMonth (&before)[kMonthsOfYear]);
