#include "schedule/table/table_scroll.h"

#include "platform/window.h"
#include "services/scroll_set.h"

SclTableState SclTable;

namespace {

constexpr std::int32_t kRepeatTicks = 5;

void Show(WindowHandle window, TableView& view) {
  SendPaint(window);
  ScrollSet(window, 0, kTableLineHeight, view.lines, view.firstLine, view.scrollBar);
  SclTable.AutoScrollDelay = kRepeatTicks;
}

}  // namespace

void TableScrollTick() {
  const WindowHandle window = SclTable.hSclTableWnd ? SclTable.hSclTableWnd : SclTable.hPlanWnd;
  if (!window) return;
  TableView& view = SclTable.hSclTableWnd ? SclTable.SclTableView : SclTable.PlanView;
  if (SclTable.AutoScrollDelay > 0) {
    --SclTable.AutoScrollDelay;
    return;
  }
  switch (SclTable.TableScrollDirection) {
    case ScrollDirection::Down:
      if (view.firstLine + view.pageLines < view.lines) {
        ++view.firstLine;
        if (view.selectionEnd < view.lines - 1) ++view.selectionEnd;
        Show(window, view);
      } else {
        SclTable.TableScrollDirection = ScrollDirection::None;
      }
      break;
    case ScrollDirection::Up:
      if (view.firstLine > 0) {
        --view.firstLine;
        if (view.selectionEnd > 0) --view.selectionEnd;
        Show(window, view);
      } else {
        SclTable.TableScrollDirection = ScrollDirection::None;
      }
      break;
    case ScrollDirection::None:
      break;
  }
}

void TableScrollStop() {
  SclTable.TableScrollDirection = ScrollDirection::None;
  SclTable.AutoScrollDelay = 0;
}

void TableScrollBarDestroy() {
  WindowDestroy(SclTable.SclTableView.scrollBar);
  SclTable.SclTableView.scrollBar = nullptr;
}

int TableScrollDue() {
  return TickDueIf(SclTable.hSclTableWnd || SclTable.hPlanWnd);
}

void TableScrollForget() {
  SclTable.TableScrollDirection = ScrollDirection::None;
}
