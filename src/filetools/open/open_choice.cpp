#include "filetools/open/open_choice.h"

#include "filetools/open/open_history.h"
#include "filetools/open/open_text.h"
#include "services/path.h"

OpnWorkRec OpnWork;

namespace {

int FileFind(const char* name, const char* folder) {
  for (int row = 0; row < OpnWork.fileCount; ++row) {
    if (OpnTextSame(OpnHistory.fileName[row], name) && OpnTextSame(OpnHistory.filePath[row], folder)) {
      return row;
    }
  }
  return -1;
}

// The rows of the lists may have changed since the choice was made.
bool ChoiceStands(int row) {
  return row >= 0 && row < OpnWork.fileCount && row < kOpnFileMax &&
         OpnTextSame(OpnHistory.fileName[row], OpnSelection.fileName) &&
         OpnTextSame(OpnHistory.filePath[row], OpnSelection.filePath);
}

// A browsed program goes to the top of its list, if it was chosen or not counted in.
void ProgListUpdate() {
  if (OpnWork.progCount == OpnProgList.progCount) return;
  const int row = OpnWork.progSel - 1;
  if (row >= 0 && row < OpnWork.progCount) {
    OpnRowToTop(OpnProgList.progName, row);
    OpnRowToTop(OpnProgList.progPath, row);
    OpnWork.progSel = 1;
  }
  OpnProgList.progCount = OpnWork.progCount;
}

bool ProgramTake(int row) {
  if (OpnTextSame(OpnHistory.progName[row], OpnSelection.progName) &&
      OpnTextSame(OpnHistory.progPath[row], OpnSelection.progPath)) {
    return false;
  }
  OpnTextSet(OpnHistory.progName[row], OpnSelection.progName);
  OpnTextSet(OpnHistory.progPath[row], OpnSelection.progPath);
  return true;
}

}  // namespace

void OpnWorkReset() {
  OpnWork.fileCount = OpnHistory.fileCount;
  OpnWork.progCount = OpnProgList.progCount;
  OpnWorkChoose(0);
}

void OpnWorkChoose(int fileRow) {
  OpnWork.fileSel = fileRow >= 0 && fileRow < OpnWork.fileCount ? fileRow : -1;
  OpnWork.progSel = OpnProgSelOf(OpnWork.fileSel);
}

int OpnProgSelOf(int fileRow) {
  if (fileRow < 0 || fileRow >= OpnWork.fileCount || OpnHistory.progName[fileRow][0] == '\0') return 0;
  return OpnProgFind(OpnHistory.progName[fileRow], OpnHistory.progPath[fileRow], OpnWork.progCount) + 1;
}

bool OpnBrowseFile(const char* path) {
  PathSplit(path);
  if (PathParts.PathName[0] == '\0') return true;
  const int known = FileFind(PathParts.PathName, PathParts.PathFolder);
  if (known >= 0) {
    OpnWorkChoose(known);
    return true;
  }
  const int row = OpnHistory.fileCount;
  OpnTextSet(OpnHistory.fileName[row], PathParts.PathName);
  OpnTextSet(OpnHistory.filePath[row], PathParts.PathFolder);
  OpnTextSet(OpnHistory.progName[row], "");
  OpnTextSet(OpnHistory.progPath[row], "");
  if (row < kOpnFileMax) OpnHistory.openCount[row] = 0;
  // kept: a file behind the two hundredth is dropped, and the last one chosen.
  const bool fits = row < kOpnFileMax;
  OpnWork.fileCount = fits ? row + 1 : kOpnFileMax;
  OpnWork.fileSel = OpnWork.fileCount - 1;
  OpnWork.progSel = 0;
  return fits;
}

bool OpnBrowseProgram(const char* path) {
  PathSplit(path);
  if (PathParts.PathName[0] == '\0') return true;
  const int known = OpnProgFind(PathParts.PathName, PathParts.PathFolder, OpnWork.progCount);
  if (known >= 0) {
    OpnWork.progSel = known + 1;
    return true;
  }
  const int row = OpnProgList.progCount;
  OpnTextSet(OpnProgList.progName[row], PathParts.PathName);
  OpnTextSet(OpnProgList.progPath[row], PathParts.PathFolder);
  // kept: a list that was built with more than 199 programs loses those beyond.
  const bool fits = row < kOpnProgMax;
  OpnWork.progCount = fits ? row + 1 : kOpnProgMax;
  OpnWork.progSel = OpnWork.progCount;
  return fits;
}

bool OpnSelectionFill(int fileSel, int progSel) {
  if (fileSel < 0 || fileSel >= kOpnFileMax || fileSel >= OpnWork.fileCount) return false;
  const bool chosen = progSel > 0 && progSel < kOpnFileMax && progSel <= OpnWork.progCount;
  OpnSelectionSet(OpnSelection, OpnHistory.fileName[fileSel], OpnHistory.filePath[fileSel],
                  chosen ? OpnProgList.progName[progSel - 1] : "",
                  chosen ? OpnProgList.progPath[progSel - 1] : "");
  return true;
}

bool OpnHisUpdate() {
  if (!ChoiceStands(OpnWork.fileSel)) return false;
  bool changed = false;
  // kept: with a browsed file in the list, another one that is started instead goes to
  // the top too, and the browsed one stays as the last row.
  if (OpnWork.fileCount != OpnHistory.fileCount) {
    OpnHisToTop(OpnWork.fileSel);
    OpnWork.fileSel = 0;
    OpnHistory.fileCount = static_cast<std::uint8_t>(OpnWork.fileCount);
    changed = true;
  }
  changed = ProgramTake(OpnWork.fileSel) || changed;
  ProgListUpdate();
  return changed;
}
