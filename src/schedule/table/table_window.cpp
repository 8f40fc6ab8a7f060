#include "schedule/table/table_window.h"

#include "platform/dialog.h"
#include "platform/window.h"
#include "schedule/table/row_commands.h"
#include "services/commands.h"
#include "services/modal.h"
#include "services/popup_place.h"

TableCell TableCellOf(TableHit hit) {
  switch (hit) {
    case TableHit::Content:
      return TableCell::Content;
    case TableHit::Hours:
      return TableCell::Hours;
    case TableHit::Check:
      return TableCell::Check;
    case TableHit::Alarm:
      return TableCell::Alarm;
    default:
      return TableCell::None;
  }
}

void TableFocus(WindowHandle window, const TableView& view, int bar) {
  if (view.scrollBar) ControlSetFocus(window, bar);
}

void TableMenuOpen(const Event& event, int row) {
  if (ModalIsUp() || !RowMenuMayOpen(row)) return;
  RowWindowClicked(event.window);
  SendPaint(event.window);
  PopupPointSet({event.x, event.y});
  CommandSend(Command::ScheduleLineMenu);
}
