#include "filetools/open/open_selection.h"

OpnSelectionRec OpnSelection;
OpnSelectionRec OpnSelectionSave;

void OpnSelectionSet(const char* fileName, const char* filePath, const char* progName, const char* progPath) {
  OpnTextSet(OpnSelection.fileName, fileName);
  OpnTextSet(OpnSelection.filePath, filePath);
  OpnTextSet(OpnSelection.progName, progName);
  OpnTextSet(OpnSelection.progPath, progPath);
}

void OpnSelectionKeep() {
  OpnSelectionSave = OpnSelection;
}

void OpnSelectionBack() {
  OpnSelection = OpnSelectionSave;
}

bool OpnSelectionSame(const OpnSelectionRec& a, const OpnSelectionRec& b) {
  return OpnTextSame(a.fileName, b.fileName) && OpnTextSame(a.filePath, b.filePath) &&
         OpnTextSame(a.progName, b.progName) && OpnTextSame(a.progPath, b.progPath);
}
