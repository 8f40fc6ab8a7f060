#include "clock_calendar/clock_calendar_commands.h"

#include "clock_calendar/calendar/calendar.h"
#include "services/commands.h"
#include "services/panel_entry.h"
#include "services/settings_save.h"

namespace {

// The window of the calendar is not there yet: all that is left of a panel entry is
// that the panel closes.
bool IsPanelEntry(Command command) {
  return command == Command::CalendarSelect;
}

}  // namespace

void CalendarCommand(Command command) {
  if (IsPanelEntry(command)) PanelLeave();
  // The years are rebuilt when a sibling has written the calendar file.
  if (command == Command::CalendarYears) {
    CalenYearsRebuild();
    SysFileWrite();
  }
}
