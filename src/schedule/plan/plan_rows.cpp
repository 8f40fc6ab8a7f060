// The lines of the plan, for the commands of its table.
// settled: whatever inserts, deletes or pastes lines of a plan makes the plan changed, as the editors
// do, so that it is not lost without a question.
#include <algorithm>

#include "schedule/plan/plan.h"
#include "schedule/plan/plan_window.h"

namespace {

int Count() {
  return Plan.head.count;
}

void Insert(int row) {
  const int count = Count();
  if (count >= kScpLineMax || row < 0 || row > count) return;
  std::move_backward(Plan.ScpPlanTable + row, Plan.ScpPlanTable + count, Plan.ScpPlanTable + count + 1);
  Plan.ScpPlanTable[row] = ScpNewLine();
  Plan.head.count = count + 1;
  Plan.dirty = true;
}

// settled: places that a deletion leaves behind the plan's last line become empty lines, which no
// conversion places.
void Remove(int row, int lines) {
  const int count = Count();
  if (row < 0 || lines <= 0 || row + lines > count) return;
  std::move(Plan.ScpPlanTable + row + lines, Plan.ScpPlanTable + count, Plan.ScpPlanTable + row);
  std::fill(Plan.ScpPlanTable + count - lines, Plan.ScpPlanTable + count, ScpNewLine());
  Plan.head.count = count - lines;
  Plan.dirty = true;
}

void Copy(int to, int from) {
  Plan.ScpPlanTable[to] = Plan.ScpPlanTable[from];
  Plan.dirty = true;
}

constexpr RowTable kRows{CopyMark::InPlan, kScpLineMax, kScpLineMax, Count, Insert, Remove, Copy, nullptr};

}  // namespace

const RowTable& PlanRowTable() {
  return kRows;
}
