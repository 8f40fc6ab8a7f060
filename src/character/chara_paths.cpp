#include "character/chara_paths.h"

#include "services/program.h"
#include "services/text.h"
#include "world/world_pictures.h"

namespace {
char pathBuffer[kRootSize + 100];
}  // namespace

const char* CharaDwcPath(int number) {
  TextFormat(pathBuffer, sizeof pathBuffer, "%s\\キャラクタ\\Chara%d.dwc", Program.RootFolder, number + 1);
  return pathBuffer;
}

const char* CharaBmpPath(int number, int frame) {
  WorldPicturePath(pathBuffer, sizeof pathBuffer, number + 1, frame + 1);
  return pathBuffer;
}

const char* CharaMaskPath(int number, int frame) {
  WorldMaskPath(pathBuffer, sizeof pathBuffer, number + 1, frame + 1);
  return pathBuffer;
}
