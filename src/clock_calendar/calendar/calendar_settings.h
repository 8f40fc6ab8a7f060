// What the settings file keeps of the calendars, and what a new data set holds.
//
// offset    size  field, behind the clock's
//      0       4  CalenSel
//      4    1032  CalenNames, of the first 8 calendars
//   1036       8  CalenKinds, the same
//   1044       8  CalenParts, the same
//   1052       3  CalenYears
//   1055       1  CalenShow
//   1056       4  CalenYearPos
//   1060       4  CalenFirstYear
//   1064       4  CalenYearCount
//   1068       4  CalenCount
//   1072       4  CalenKind
//   1076  168192  CalenMonths
// 169268       8  CalenX, CalenY
// 169276       4  CalenPageSize
// 169280       4  CalenNoteMode
// 169284       4  CalenNearNote
// 169288       4  CalenPictureOn
// 169292       4  CalenBackColour
// 169296      60  CalenFigPhase
// 169356       2  CalenFigCount
// 169358     240  CalenFigPos1
// 169598     240  CalenFigPos2
// 169838       8  CalenFigPeriod
// 169846       8  CalenFigStep
// 169854       8  CalenFigTurn
// 169862      60  CalenFigDir
#pragma once

#include "clock_calendar/calendar/calendar.h"
#include "services/record.h"

struct CalendarSettings {};

template <class Io>
constexpr void Fields(Io& io, CalendarSettings&) {
  io.BE32(Calendar.CalenSel);
  for (int i = 0; i < kCalenSettingsCount; ++i) io.Text(Calendar.CalenNames[i]);
  for (int i = 0; i < kCalenSettingsCount; ++i) io.U8(Calendar.CalenKinds[i]);
  for (int i = 0; i < kCalenSettingsCount; ++i) io.U8(Calendar.CalenParts[i]);
  io.Bytes(Calendar.CalenYears);
  io.U8(Calendar.CalenShow);
  io.At(1056);
  io.BE32(Calendar.CalenYearPos);
  io.BE32(Calendar.CalenFirstYear);
  io.BE32(Calendar.CalenYearCount);
  io.BE32(Calendar.CalenCount);
  io.BE32(Calendar.CalenKind);
  io.Record(Calendar.CalenMonths);
  io.At(169268);
  io.BE32(Calendar.CalenX);
  io.BE32(Calendar.CalenY);
  io.BE32(Calendar.CalenPageSize);
  io.BE32(Calendar.CalenNoteMode);
  io.BE32(Calendar.CalenNearNote);
  io.BE32(Calendar.CalenPictureOn);
  io.Bytes(Calendar.CalenBackColour);
  io.Bytes(Calendar.CalenFigPhase);
  io.Bytes(Calendar.CalenFigCount);
  io.BE32(Calendar.CalenFigPos1);
  io.BE32(Calendar.CalenFigPos2);
  io.BE32(Calendar.CalenFigPeriod);
  io.BE32(Calendar.CalenFigStep);
  io.BE32(Calendar.CalenFigTurn);
  io.Bytes(Calendar.CalenFigDir);
  io.At(169922);
}

// The choices of the months, behind the schedule's part.
struct CalendarMonthSettings {};

template <class Io>
constexpr void Fields(Io& io, CalendarMonthSettings&) {
  io.Record(Calendar.CalenMonthFlags);
  io.At(360);
}

// The whole file has been read.
// kept: a settings file with its last field shows the calendar's picture, whatever its own
// switch says; an older one is believed.
void CalendarSettingsTaken();

// The calendars begin in this year, with a year built if there is none.
void CalendarYearsBegin(int year);

// Puts what a new data set holds into them.
void CalendarSettingsFactory();
