#include "filetools/open/open_state.h"

#include <algorithm>

GroupRunState GroupRun;

OpnHistoryRec OpnHistory;
OpnSelectionRec OpnSelection;
OpnSelectionRec OpnSelectionSave;
const OpnGroupRec* OpnPendingGroup;

int OpnPendingCount() {
  return OpnPendingGroup ? std::min<int>(OpnPendingGroup->fileCount, kOpnGroupFileMax) : 0;
}

const char* OpnPendingName(int place) {
  return place >= 0 && place < OpnPendingCount() ? OpnPendingGroup->fileName[place] : "";
}
