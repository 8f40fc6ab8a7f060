#include "character/frames.h"

#include "shell/shell.h"
#include "shell/text.h"

ImageHandle FrameTable[kFrameRowCount][kFrameMax];

namespace {

char pathBuffer[kRootSize + 100];

bool IsRow(int row) {
  return row >= 0 && row < kFrameRowCount;
}

}  // namespace

ImageHandle FramePicture(int row, int frame) {
  return IsRow(row) && frame >= 0 && frame < kFrameMax ? FrameTable[row][frame] : nullptr;
}

void FramesLoad(int row, int number) {
  if (!IsRow(row)) return;
  for (int frame = 0; frame < kFrameMax; ++frame) {
    DibFree(FrameTable[row][frame]);
    FrameTable[row][frame] = DibLoad(CharaBmpPath(number, frame));
  }
}

void FramesFree(int row) {
  if (!IsRow(row)) return;
  for (ImageHandle& picture : FrameTable[row]) {
    DibFree(picture);
    picture = nullptr;
  }
}

const char* CharaDwcPath(int number) {
  TextFormat(pathBuffer, sizeof pathBuffer, "%s\\キャラクタ\\Chara%d.dwc", RootFolder, number + 1);
  return pathBuffer;
}

const char* CharaBmpPath(int number, int frame) {
  TextFormat(pathBuffer, sizeof pathBuffer, "%s\\キャラクタ\\Chara%d_%d.bmp", RootFolder, number + 1,
             frame + 1);
  return pathBuffer;
}

const char* CharaMaskPath(int number, int frame) {
  TextFormat(pathBuffer, sizeof pathBuffer, "%s\\キャラクタ\\Chara%d_%dx.bmp", RootFolder, number + 1,
             frame + 1);
  return pathBuffer;
}
