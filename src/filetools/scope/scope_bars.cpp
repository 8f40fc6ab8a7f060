#include "filetools/scope/scope_bars.h"

#include "filetools/scope/scope_state.h"
#include "filetools/scope/scope_tables.h"
#include "filetools/scope/scope_unit.h"

namespace {

// A share of nothing is an empty bar.
void Build(int row, float size, float total) {
  const ScopeAmount amount = ScopeUnit(size);
  const ScopeShare share = ScopePercent(size, total);
  ScopeBarPut(row, {0, size, amount.unit, amount.valueInt, amount.valueFrac, share.percentInt,
                    share.percentFrac, ScopeWhole(ScopeRatio(size, total) * kScopeBarFull)});
}

}  // namespace

void ScopeBuildBars() {
  Build(0, Scope.folderTotal, Scope.driveTotal);
  for (int n = 0; n < Scope.scopeFolderCount; ++n) {
    if (Scope.folderTotal > 0.0F) {
      Build(n + 1, ScopeBarGet(n + 1).size, Scope.folderTotal);
    } else {
      ScopeBarPut(n + 1, {});
    }
  }
}
