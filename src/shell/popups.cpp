#include "shell/popups.h"

#include <initializer_list>

#include "clock_calendar/clicked_day.h"
#include "platform/dialog.h"
#include "platform/window.h"
#include "resources/ids.h"
#include "shell/commands.h"
#include "shell/shell.h"

Point PopupPoint;

namespace {

// Shows a menu at the clicked place and sends what was chosen to the main window.
// False when nothing was.
bool Popup(int menuId, WindowHandle window) {
  const std::uint32_t command = MenuPopup(menuId, window, PopupPoint.x, PopupPoint.y, true);
  if (command == 0) return false;
  SendCommand(hMainWnd, command);
  return true;
}

}  // namespace

bool PopupMayOpen() {
  for (const WindowHandle open :
       {hDiskMenu, hMenuDlg, hToolDlg, hSubDlg, hSnryDlg, hBackUpDlg, hSearchDlg, hFilePickDlg}) {
    if (open) return false;
  }
  return true;
}

void CommandSchedulePopup(std::uint32_t) {
  // The plan chart has the same menu for its lines.
  const WindowHandle table = hSclTableWnd ? hSclTableWnd : hPlanWnd;
  if (table) Popup(IDM_SCHEDULE_LINE, table);
}

void CommandCalendarPopup(std::uint32_t) {
  if (!hCalenWnd || Popup(IDM_CALENDAR_DAY, hCalenWnd)) return;
  CalenClickedDay = 0;
  SendPaint(hCalenWnd);
}

void CommandClockPopup(std::uint32_t) {
  if (!hClockWnd || Popup(IDM_CLOCK, hClockWnd)) return;
  SendPaint(hClockWnd);
}
