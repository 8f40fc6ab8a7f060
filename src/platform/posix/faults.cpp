#include "platform/posix/faults.h"

#include <utility>

namespace {
struct Plan {
  int calls = 0;
  int nth = 0;  // 0: none
  bool andAfter = false;
  std::function<void()> act;  // instead of a failure
};
Plan plans[static_cast<int>(FaultKind::Count)];
bool met = false;

Plan& PlanOf(FaultKind kind) {
  return plans[static_cast<int>(kind)];
}
}  // namespace

void FaultArm(FaultKind kind, int nth) {
  PlanOf(kind) = {0, nth, false, nullptr};
  met = false;
}

void FaultArmFrom(FaultKind kind, int nth) {
  PlanOf(kind) = {0, nth, true, nullptr};
  met = false;
}

void FaultMeanwhile(FaultKind kind, int nth, std::function<void()> act) {
  PlanOf(kind) = {0, nth, false, std::move(act)};
  met = false;
}

void FaultClear() {
  for (Plan& plan : plans) plan = Plan{};
  met = false;
}

int FaultCalls(FaultKind kind) {
  return PlanOf(kind).calls;
}

bool FaultWasMet() {
  return met;
}

bool FaultMeets(FaultKind kind) {
  Plan& plan = PlanOf(kind);
  ++plan.calls;
  const bool meets = plan.nth > 0 && (plan.andAfter ? plan.calls >= plan.nth : plan.calls == plan.nth);
  met = met || meets;
  if (!meets || !plan.act) return meets;
  plan.act();
  return false;
}
