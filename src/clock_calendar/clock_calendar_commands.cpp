#include "clock_calendar/clock_calendar_commands.h"

#include "services/commands.h"
#include "services/panel_entry.h"

void ClockCommand(Command command) {
  // The clock's windows are not there yet: all that is left of its panel entry is that
  // the panel closes.
  if (command == Command::ClockSelect) PanelLeave();
}

// The day's schedule is the schedule's to show.
void CalendarCommand(Command) {}
