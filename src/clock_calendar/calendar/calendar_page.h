// The calendar's page: what it shows, and its painting. The page is painted for the
// desktop and, as a preview, for a dialog.
//
// Days count from 0 unless told otherwise.
#pragma once

#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/calendar/calendar_picture.h"
#include "platform/canvas.h"

inline constexpr Colour kCalenRed = 0x0000FF;
inline constexpr Colour kCalenBlack = 0;

struct CalenPage {
  int yearIndex;
  int month;
  int today;     // -1: today is not in this month
  int viewFrom;  // the day that the week and the day page count their offset from
  int clicked;   // from 1, 0 for none
  int pointed;   // from 1, 0 for none
  bool preview;  // no buttons, no hit tables, no list of notes
  const CalendarPicturesState* pictures;
};

// The page of the desktop; a preview of a month with these pictures.
CalenPage CalenPageOnShow();
CalenPage CalenPagePreview(int yearIndex, int month, const CalendarPicturesState& pictures);

// --- What a page says

inline constexpr int kCalenTextSize = 32;

const CalenMonth& CalenPageMonth(const CalenPage& page);
int CalenPageDays(const CalenPage& page);  // of the month, held inside the tables

// "2026年  11月", or in English "2026  November".
void CalenHeadText(const CalenPage& page, char (&text)[kCalenTextSize]);
// The name of a column from 0, Sunday first; as English or Japanese as the definition asks.
const char* CalenWeekdayName(int column);
// The column of a day, Sunday is 0.
int CalenColumnOf(const CalenPage& page, int day);
// The distance from today, "(明日)"; a second line for some in English, else empty.
struct CalenDistance {
  char first[kCalenTextSize];
  char second[kCalenTextSize];
};
CalenDistance CalenDistanceText(int offset);
// The day that the week and the day page show.
int CalenViewDay(const CalenPage& page);
// The colour of a day's number.
Colour CalenDayColour(const CalenPage& page, int day);
bool CalenDayHasNote(const CalenPage& page, int day);

// --- Painting, with the page's top left corner at `at`

void CalenPageDraw(Canvas* canvas, const CalenPage& page, Point at);
void CalenMonthPageDraw(Canvas* canvas, const CalenPage& page, Point at);
void CalenWeekPageDraw(Canvas* canvas, const CalenPage& page, Point at);
void CalenDayPageDraw(Canvas* canvas, const CalenPage& page, Point at);

// The picture of the month with its figures, from the top left corner of the window on.
void CalenPictureLayerDraw(Canvas* canvas, const CalenPage& page, Point at);

// --- Parts of a day's cell that several pages have

// A white box with an edge.
void CalenBoxDraw(Canvas* canvas, const Rect& box);
// The number with the colour of its day, as text or as figures.
void CalenNumberDraw(Canvas* canvas, const CalenPage& page, int day, Point at, const char* text);
// How much room it takes.
struct CalenExtent {
  int width;
  int height;
};
CalenExtent CalenNumberExtent(Canvas* canvas, const CalenPage& page, int day, const char* text);
// The filled box of today, and the frame of the clicked day and of the day of the pointer.
void CalenTodayDraw(Canvas* canvas, const CalenPage& page, int day, const Rect& box);
void CalenFrameDraw(Canvas* canvas, const CalenPage& page, int day, const Rect& box);
void CalenStickerDraw(Canvas* canvas, const CalenPage& page, int day, Point at);

// --- The two buttons of the week and the day page, made afresh at each painting

// The places of the buttons in the window; false for the month page, which has none.
struct CalenStepButtons {
  int backId;  // the numbers are those of the commands
  int onId;
  Rect back;
  Rect on;
};
bool CalenStepButtonsOf(CalenStepButtons* buttons);
// The page's corner in the window: below the picture.
Point CalenPageCorner();
