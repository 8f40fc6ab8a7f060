#include "clock_calendar/calendar/calendar_commands.h"

#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/calendar/calendar_dialogs.h"
#include "clock_calendar/calendar/calendar_window.h"
#include "platform/window.h"
#include "services/commands.h"
#include "services/feature_dialog.h"
#include "services/settings_save.h"

namespace {

// A dialog that the popup menu opens too: the clicked day is done with at its end.
void DayDialogRun(int (*dialog)()) {
  FeatureDialogRun(Feature::CalendarDisplay, dialog);
  CalenClickedDaySet(0);
  SendPaint(Calendar.hCalenWnd);
}

}  // namespace

void CommandCalendarSelect() {
  DayDialogRun(SelCalenderDlgRun);
}

void CommandCalendarNote() {
  DayDialogRun(CalenCommentDlgRun);
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
