#include "filetools/divide/divide_state.h"

#include "services/state.h"

FileDivideState FileDivide;
DivideTransferState DivideTransfer;

void DivideFilesClose() {
  for (int* file : {&FileDivide.pieceFile, &FileDivide.cofFile, &FileDivide.sourceFile}) {
    FileClose(*file);
    *file = kNoFile;
  }
}

void FileDivideReset() {
  DivideFilesClose();
  StateReset(FileDivide);
  StateReset(DivideTransfer);
}
