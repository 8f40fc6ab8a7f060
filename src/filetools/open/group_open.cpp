#include "filetools/open/group_open.h"

#include "character/walk.h"
#include "filetools/open/open_groups.h"
#include "filetools/open/open_launch.h"
#include "filetools/open/open_state.h"
#include "filetools/open/open_text.h"

namespace {

constexpr std::int32_t kGap = 50;

int cursor;  // the next file of the pending group

}  // namespace

void OpnGroupStart(int group) {
  if (group < 0 || group >= kOpnGroupMax) return;
  OpnPendingGroup = &OpnGroups.OpnGroupTable[group];
  cursor = 0;
}

void OpnGroupTick() {
  if (!OpnPendingGroup || Walk.OpeningState == kOpeningGroup) return;
  if (GroupRun.GroupOpenDelay > 0) {
    --GroupRun.GroupOpenDelay;
    return;
  }
  if (cursor >= OpnPendingCount()) {
    OpnPendingGroup = nullptr;
    return;
  }
  const OpnGroupRec& g = *OpnPendingGroup;
  OpnSelectionSave = OpnSelection;
  OpnSelectionSet(OpnSelection, g.fileName[cursor], g.filePath[cursor], g.progName[cursor],
                  g.progPath[cursor]);
  OpnLaunch();
  ++cursor;
  GroupRun.GroupOpenDelay = kGap;
  OpnSelection = OpnSelectionSave;
}

int OpnGroupDue() {
  return TickDueIf(OpnPendingGroup != nullptr);
}
