#include "schedule/table/table_window.h"

#include "platform/dialog.h"
#include "platform/window.h"
#include "schedule/table/row_commands.h"
#include "services/commands.h"
#include "services/modal.h"
#include "services/popup_place.h"

namespace {

void LeftDown(const TableWindow& table, const Event& event) {
  TableFocus(event.window, table.view, table.bar);
  RowWindowClicked(event.window);
  const TablePlace place = TablePlaceOf(table, event);
  if (place.hit == TableHit::Number) {
    RowPress(event, place.row);
  } else if (const TableCell cell = TableCellOf(place.hit); cell != TableCell::None) {
    RowChoose(place.row, cell);
    SendPaint(event.window);
  } else if (place.hit == TableHit::Start) {
    RowsForget();
    SendPaint(event.window);
  }
}

void RightDown(const TableWindow& table, const Event& event) {
  const TablePlace place = TablePlaceOf(table, event);
  if (place.hit == TableHit::Number) TableMenuOpen(event, place.row);
}

}  // namespace

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

void TableWindowFit(const TableWindow& table, WindowHandle window) {
  const TableLayout layout = table.layout(window);
  TableBarPlace(window, table.view, table.bar, TableBarPlaceOf(layout));
  TableViewFit(table.view, table.rows(), layout.visible);
}

TablePlace TablePlaceOf(const TableWindow& table, const Event& event) {
  return TablePlaceAt(table.layout(event.window), table.view.firstLine, table.view.lines, event.x, event.y);
}

bool TableWindowEvent(const TableWindow& table, const Event& event) {
  switch (event.kind) {
    case EventKind::LeftDown:
      LeftDown(table, event);
      return true;
    case EventKind::MouseMove:
      RowDrag(event, table.layout(event.window), table.view);
      return true;
    case EventKind::LeftUp:
      RowRelease(event, table.layout(event.window), table.view);
      return true;
    case EventKind::RightDown:
      RightDown(table, event);
      return true;
    default:
      return TableScrollEvent(event, table.view);
  }
}
