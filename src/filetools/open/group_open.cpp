#include "filetools/open/group_open.h"

#include "character/walk_state.h"
#include "filetools/open/open_launch.h"
#include "filetools/open/open_selection.h"

GroupRunState GroupRun;

namespace {
constexpr std::int32_t kGap = 50;
}  // namespace

void OpnGroupStart(int group) {
  if (group < 0 || group >= kOpnGroupMax) return;
  GroupRun.OpnPendingGroup = &OpnGroups.OpnGroupTable[group];
  GroupRun.cursor = 0;
}

void OpnGroupTick() {
  if (!GroupRun.OpnPendingGroup || Walk.OpeningState == kOpeningGroup) return;
  if (GroupRun.GroupOpenDelay > 0) {
    --GroupRun.GroupOpenDelay;
    return;
  }
  const OpnGroupRec& g = *GroupRun.OpnPendingGroup;
  if (GroupRun.cursor >= g.fileCount) {
    GroupRun.OpnPendingGroup = nullptr;
    return;
  }
  const int file = GroupRun.cursor++;
  GroupRun.GroupOpenDelay = kGap;
  OpnSelectionKeep();
  OpnSelectionSet(g.fileName[file], g.filePath[file], g.progName[file], g.progPath[file]);
  // kept: what is opened as a group comes into neither the history nor the open record.
  OpnLaunch();
  OpnSelectionBack();
}

int OpnGroupDue() {
  return TickDueIf(GroupRun.OpnPendingGroup != nullptr);
}
