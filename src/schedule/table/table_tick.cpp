#include "schedule/table/table_tick.h"

#include "schedule/table/row_selection.h"
#include "schedule/table/table_scroll.h"

namespace {

constexpr std::int32_t kRepeatTicks = 5;

// A table that scrolls under the pointer takes the end of the selection with it.
bool StepDown(TableView& view) {
  if (view.firstLine + view.pageLines >= view.lines) return false;
  ++view.firstLine;
  RowEndMove(1, view.lines);
  return true;
}

bool StepUp(TableView& view) {
  if (view.firstLine <= 0) return false;
  --view.firstLine;
  RowEndMove(-1, view.lines);
  return true;
}

bool Step(TableView& view) {
  if (SclTable.TableScrollDirection == ScrollDirection::Down) return StepDown(view);
  return SclTable.TableScrollDirection == ScrollDirection::Up && StepUp(view);
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
  if (SclTable.TableScrollDirection == ScrollDirection::None) return;
  if (Step(view)) {
    TableScrollShow(window, view);
    SclTable.AutoScrollDelay = kRepeatTicks;
  } else {
    SclTable.TableScrollDirection = ScrollDirection::None;
  }
}

int TableScrollDue() {
  return TickDueIf(SclTable.hSclTableWnd || SclTable.hPlanWnd);
}
