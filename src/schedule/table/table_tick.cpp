#include "schedule/table/table_tick.h"

#include "schedule/table/row_selection.h"
#include "schedule/table/table_scroll.h"

namespace {

constexpr std::int32_t kRepeatTicks = 5;

}  // namespace

void TableScrollTick() {
  const WindowHandle window = SclTable.hSclTableWnd ? SclTable.hSclTableWnd : SclTable.hPlanWnd;
  if (!window) return;
  TableView& view = SclTable.hSclTableWnd ? SclTable.SclTableView : SclTable.PlanView;
  if (SclTable.AutoScrollDelay > 0) {
    --SclTable.AutoScrollDelay;
    return;
  }
  if (SclTable.TableScrollDirection == ScrollDirection::None) return;
  if (RowsScroll(window, view, SclTable.TableScrollDirection)) {
    SclTable.AutoScrollDelay = kRepeatTicks;
  } else {
    SclTable.TableScrollDirection = ScrollDirection::None;
  }
}

int TableScrollDue() {
  return TickDueIf(SclTable.hSclTableWnd || SclTable.hPlanWnd);
}
