#include "filetools/group_open.h"

#include "filetools/open_groups.h"
#include "filetools/open_launch.h"
#include "filetools/open_text.h"
#include "shell/shell.h"

namespace {

constexpr std::int32_t kGap = 50;

int cursor;  // the next file of the pending group

}  // namespace

void OpnGroupStart(int group) {
  if (group < 0 || group >= kOpnGroupMax) return;
  OpnPendingGroup = &OpnGroupTable[group];
  cursor = 0;
}

void OpnGroupTick() {
  if (!OpnPendingGroup || OpeningState == kOpeningGroup) return;
  if (GroupOpenDelay > 0) {
    --GroupOpenDelay;
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
  GroupOpenDelay = kGap;
  OpnSelection = OpnSelectionSave;
}
