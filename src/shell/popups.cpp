#include "shell/popups.h"

#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/clock/clock.h"
#include "filetools/back_up/back_up.h"
#include "filetools/stepped_work.h"
#include "platform/dialog.h"
#include "platform/window.h"
#include "resources/clock_calendar_ids.h"
#include "resources/schedule_ids.h"
#include "schedule/table/row_commands.h"
#include "services/commands.h"
#include "services/modal.h"
#include "services/panel_entry.h"
#include "services/program.h"
#include "shell/shell_commands.h"

PopupsState Popups;

namespace {

// Shows a menu at the clicked place and sends what was chosen to the main window.
// False when nothing was.
bool Popup(int menuId, WindowHandle window) {
  const std::uint32_t command = MenuPopup(menuId, window, Popups.PopupPoint.x, Popups.PopupPoint.y, true);
  if (command == 0) return false;
  CommandSend(static_cast<Command>(command));
  return true;
}

}  // namespace

bool PopupMayOpen() {
  return !PanelIsOpen() && !ModalIsUp() && !BackUpRun.hBackUpDlg && !Stepped.hSearchDlg;
}

void PopupPointSet(Point at) {
  Popups.PopupPoint = at;
}

void CommandSchedulePopup(Command) {
  // The plan chart has the same menu for its lines.
  const WindowHandle table = RowWindow();
  if (table) Popup(IDM_SCHEDULE_LINE, table);
}

void CommandCalendarPopup(Command) {
  if (!Calendar.hCalenWnd || Popup(IDM_CALENDAR_DAY, Calendar.hCalenWnd)) return;
  CalenClickedDaySet(0);
  SendPaint(Calendar.hCalenWnd);
}

void CommandClockPopup(Command) {
  if (!Clock.hClockWnd || Popup(IDM_CLOCK, Clock.hClockWnd)) return;
  SendPaint(Clock.hClockWnd);
}
