#include "clock_calendar/clock_calendar_commands.h"

#include "clock_calendar/calendar/calendar.h"
#include "platform/window.h"
#include "shell/panel.h"
#include "shell/settings.h"

namespace {

// The windows of the clock and the calendar are not there yet: all that is left
// of a panel entry is that the panel closes.
bool IsPanelEntry(std::uint32_t number) {
  return number == 1911 || number == 1913;
}

void PanelEntryEnd() {
  SendClose(Panel.hDiskMenu);
  Panel.MenuPanelState = 0;
}

}  // namespace

void ClockCommand(std::uint32_t number) {
  if (IsPanelEntry(number)) PanelEntryEnd();
}

void CalendarCommand(std::uint32_t number) {
  if (IsPanelEntry(number)) PanelEntryEnd();
  // The years are rebuilt when a sibling has written the calendar file.
  if (number == 2381) {
    CalenYearsRebuild();
    SysFileWrite();
  }
}
