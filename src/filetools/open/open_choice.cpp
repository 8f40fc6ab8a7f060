#include "filetools/open/open_choice.h"

#include "filetools/open/open_history.h"
#include "filetools/open/open_programs.h"
#include "filetools/open/open_selection.h"
#include "services/path.h"

OpnWorkRec OpnWork;

namespace {

// The rows of the lists may have changed since the choice was made.
bool ChoiceStands(int row) {
  return row >= 0 && row < OpnHistory.workCount &&
         OpnTextSame(OpnHistory.fileName[row], OpnSelection.fileName) &&
         OpnTextSame(OpnHistory.filePath[row], OpnSelection.filePath);
}

// A browsed program goes to the top of its list, if it was chosen or not counted in.
void ProgListUpdate() {
  if (OpnProgList.workCount == OpnProgList.progCount) return;
  const int row = OpnWork.progSel - 1;
  if (row >= 0 && row < OpnProgList.workCount) {
    OpnProgToTop(row);
    OpnWork.progSel = 1;
  }
  OpnProgBrowsedTake();
}

}  // namespace

void OpnWorkReset() {
  OpnHisBrowsedDrop();
  OpnProgBrowsedDrop();
  OpnWorkChoose(0);
}

void OpnWorkChoose(int fileRow) {
  OpnWork.fileSel = fileRow >= 0 && fileRow < OpnHistory.workCount ? fileRow : -1;
  OpnWork.progSel = OpnProgSelOf(OpnWork.fileSel);
}

void OpnWorkTake(int fileRow, int progRow) {
  OpnWork.fileSel = fileRow;
  OpnWork.progSel = progRow;
}

int OpnProgSelOf(int fileRow) {
  if (fileRow < 0 || fileRow >= OpnHistory.workCount || OpnHistory.progName[fileRow][0] == '\0') return 0;
  return OpnProgFind(OpnHistory.progName[fileRow], OpnHistory.progPath[fileRow]) + 1;
}

bool OpnBrowseFile(const char* path) {
  PathSplit(path);
  if (PathParts.PathName[0] == '\0') return true;
  const int known = OpnHisFind(PathParts.PathName, PathParts.PathFolder);
  if (known >= 0) {
    OpnWorkChoose(known);
    return true;
  }
  // kept: a browsed file behind the two hundredth is dropped, and the last one chosen.
  const bool fits = OpnHisBrowse(PathParts.PathName, PathParts.PathFolder);
  OpnWorkTake(OpnHistory.workCount - 1, 0);
  return fits;
}

bool OpnBrowseProgram(const char* path) {
  PathSplit(path);
  if (PathParts.PathName[0] == '\0') return true;
  const int known = OpnProgFind(PathParts.PathName, PathParts.PathFolder);
  if (known >= 0) {
    OpnWork.progSel = known + 1;
    return true;
  }
  const bool fits = OpnProgBrowse(PathParts.PathName, PathParts.PathFolder);
  OpnWork.progSel = OpnProgList.workCount;
  return fits;
}

bool OpnSelectionFill(int fileSel, int progSel) {
  if (fileSel < 0 || fileSel >= kOpnFileMax || fileSel >= OpnHistory.workCount) return false;
  const bool chosen = progSel > 0 && progSel < kOpnFileMax && progSel <= OpnProgList.workCount;
  OpnSelectionSet(OpnHistory.fileName[fileSel], OpnHistory.filePath[fileSel],
                  chosen ? OpnProgList.progName[progSel - 1] : "",
                  chosen ? OpnProgList.progPath[progSel - 1] : "");
  return true;
}

bool OpnHisUpdate() {
  if (!ChoiceStands(OpnWork.fileSel)) return false;
  bool changed = false;
  // kept: with a browsed file in the history, another one that is started instead goes
  // to the top too, and the browsed one stays as the last row.
  if (OpnHistory.workCount != OpnHistory.fileCount) {
    OpnHisToTop(OpnWork.fileSel);
    OpnWork.fileSel = 0;
    OpnHisBrowsedTake();
    changed = true;
  }
  // kept: a known file that is opened again does not move to the top; only its program is kept.
  changed = OpnHisProgramSet(OpnWork.fileSel, OpnSelection.progName, OpnSelection.progPath) || changed;
  ProgListUpdate();
  return changed;
}
