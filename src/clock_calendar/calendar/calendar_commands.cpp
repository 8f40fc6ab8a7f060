#include "clock_calendar/calendar/calendar_commands.h"

#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/calendar/calendar_dialogs.h"
#include "clock_calendar/calendar/calendar_window.h"
#include "services/commands.h"
#include "services/feature_dialog.h"
#include "services/settings_save.h"

void CommandCalendarSelect() {
  FeatureDialogRun(Feature::CalendarDisplay, SelCalenderDlgRun);
}

void CommandCalendarNote() {
  FeatureDialogRun(Feature::CalendarDisplay, CalenCommentDlgRun);
}

void CommandCalendarOpen() {
  if (Calendar.hCalenWnd) {
    CommandSendTo(Calendar.hCalenWnd, Command::CalendarClear);
  } else {
    CalenWindowOpen();
  }
}

void CommandCalendarYears() {
  CalenYearsRebuild();
  SysFileWrite();
}
