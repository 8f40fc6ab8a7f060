#include "world/wef_file.h"

#include <algorithm>

#include "services/record_file.h"
#include "services/text.h"
#include "world/edit_file.h"

WefState Wef;

namespace {

constexpr char kMagic[] = "シナリオ作業 編集ファイル";

// The scene count of the first area; those of the others are passed over.
std::uint32_t ReadSceneCount(DataFile& data, std::uint32_t areas) {
  std::uint32_t scenes = 0;
  if (areas == 0) return 0;
  DataReadBE32(data, scenes);
  EditFileSkip(data, (std::uint64_t{areas} - 1) * 4);
  return scenes;
}

// kept: of a world edit file the first three scenes of the first area are read, or all of
// that area if it has fewer; what follows is not asked for.
void ReadScenes(DataFile& data, std::uint32_t scenes) {
  const int wanted = static_cast<int>(std::min<std::uint32_t>(scenes, kWefSceneMax));
  while (Wef.sceneCount < wanted && !data.failed) {
    WefScene scene{};
    if (RecordRead(data, scene)) Wef.scenes[Wef.sceneCount++] = scene;
  }
}

void ReadAll(DataFile& data) {
  WefHead head{};
  if (!RecordRead(data, head)) return;
  const std::uint32_t scenes = ReadSceneCount(data, head.areaCount);
  EditFileSkip(data, kWefBlockSize + std::uint64_t{head.areaCount} * kWefAreaSize);
  ReadScenes(data, scenes);
}

}  // namespace

int WefRead(const char* folder, const char* name) {
  char path[kEditPathSize];
  TextFormat(path, sizeof path, "%s\\%s.wef", folder, name);
  Wef.sceneCount = 0;
  DataFile data;
  const int opened = EditFileOpen(data, path, kMagic);
  if (opened != 0) return opened;
  ReadAll(data);
  return EditFileEnd(data);
}
