// What the calendar's dialogs edit: a day and its month in the working array and in the
// definition of the selected calendar.
#pragma once

#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/calendar/calendar_picture.h"

// What SetCalenBmpDlg edits of a month: of the picture in the working array, and of the
// choice of its two figures in the definition.
struct CalenBmpEdit {
  CalenMonthPicture picture;
  std::uint8_t modes[kFigureCount];  // figure modes of the definition

  bool operator==(const CalenBmpEdit&) const = default;
};

struct CalendarEditState {
  std::int32_t month = 0;  // 0 to 11, of the year on display
  std::int32_t day = 0;    // from 0
  bool changed = false;    // something is to be saved
  bool live = false;       // something has changed that a cancel takes back
  std::int32_t chosenSticker = -1;
  CalenBmpEdit bmp = {};
  CalendarPicturesState pictures = {};  // of the edited month
  // The day whose note CalenCommentDlg writes, wherever the calendar has gone meanwhile.
  std::int32_t noteYear = 0;  // two digits
  std::int32_t noteMonth = 0;
  std::int32_t noteDay = 0;
  MaskedFrame stickers[kStickerMax] = {};  // of the dialog that chooses one
};
extern CalendarEditState CalendarEdit;

// Begins with the clicked day, else with today, else with the first day on display. Ends
// the editing: its pictures are freed.
void CalenEditBegin();
void CalenEditEnd();

// Another month, year or day is edited, held inside the month; its pictures are loaded.
void CalenEditMonthSet(int yearIndex, int month);
void CalenEditDaySet(int day);
// The span begins with another year (two digits) or has another length.
void CalenEditSpanSet(int firstYear, int length);

// What is done to the edited day and month; each marks the edit as changed.
void CalenEditNoteSet(const char* note);  // no change when it is the same
void CalenEditHolidayTurn();
void CalenEditStickerSet(int sticker);  // from 0, -1 takes it off
void CalenEditNotesClear();
void CalenEditHolidaysClear();
void CalenEditStickersClear();

// The month's picture into CalendarEdit.bmp; and from there into all years of the working
// array and into the definition.
void CalenEditBmpTake();
void CalenEditBmpPut();

// The places of the list of start positions; 0 leaves the definition's.
inline constexpr int kStartPlaces = 10;
// Where a figure of that size starts in the picture.
Point CalenStartPlace(int place, int width, int height);

// Holds the clicked day for its note. Writes the note of the day that is held and saves the
// settings: false when they could not be written, or the span has left the day's year.
void CalenEditNoteBegin();
bool CalenEditNoteWrite(const char* note);

// Saves the settings and the calendar file. 0, or -1 when one of them could not be written.
int CalenSave();
