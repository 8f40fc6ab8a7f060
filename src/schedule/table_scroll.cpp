#include "schedule/table_scroll.h"

#include "platform/window.h"
#include "shell/scroll_set.h"
#include "shell/shell.h"

TableView SclTableView;
TableView PlanView;
ScrollDirection TableScrollDirection = ScrollDirection::None;

namespace {

constexpr std::int32_t kRepeatTicks = 5;

void Show(WindowHandle window, TableView& view) {
  SendPaint(window);
  ScrollSet(window, 0, kTableLineHeight, view.lines, view.firstLine, view.scrollBar);
  AutoScrollDelay = kRepeatTicks;
}

}  // namespace

void TableScrollTick() {
  const WindowHandle window = hSclTableWnd ? hSclTableWnd : hPlanWnd;
  if (!window) return;
  TableView& view = hSclTableWnd ? SclTableView : PlanView;
  if (AutoScrollDelay > 0) {
    --AutoScrollDelay;
    return;
  }
  switch (TableScrollDirection) {
    case ScrollDirection::Down:
      if (view.firstLine + view.pageLines < view.lines) {
        ++view.firstLine;
        if (view.selectionEnd < view.lines - 1) ++view.selectionEnd;
        Show(window, view);
      } else {
        TableScrollDirection = ScrollDirection::None;
      }
      break;
    case ScrollDirection::Up:
      if (view.firstLine > 0) {
        --view.firstLine;
        if (view.selectionEnd > 0) --view.selectionEnd;
        Show(window, view);
      } else {
        TableScrollDirection = ScrollDirection::None;
      }
      break;
    case ScrollDirection::None:
      break;
  }
}

void TableScrollStop() {
  TableScrollDirection = ScrollDirection::None;
  AutoScrollDelay = 0;
}

void TableScrollBarDestroy() {
  WindowDestroy(SclTableView.scrollBar);
  SclTableView.scrollBar = nullptr;
}
