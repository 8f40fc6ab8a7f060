#include "clock_calendar/calendar/calendar_settings.h"

#include <cstring>

void CalendarSettingsTaken() {
  Calendar.CalenPictureOn = 1;
}

void CalendarYearsBegin(int year) {
  CalenYearsSet(year);
  if (Calendar.CalenYearCount != 0) return;
  Calendar.CalenYearCount = 1;
  CalenYearInit(0);
}

void CalendarSettingsFactory() {
  Calendar.CalenSel = 0;
  CalenNameDefaults();
  Calendar.CalenYearCount = 1;
  Calendar.CalenX = 700;
  Calendar.CalenY = 10;
  Calendar.CalenW = 200;
  Calendar.CalenH = 220;
  Calendar.CalenPageSize = 1;
  Calendar.CalenNoteMode = 1;
  Calendar.CalenNearNote = 1;
  std::memset(Calendar.CalenPictures, 0, sizeof Calendar.CalenPictures);
  Calendar.CalenPictures[0] = 1;
}
