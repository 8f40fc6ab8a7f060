#include "scenario/storage/snry_paths.h"

#include <algorithm>

#include "services/program.h"
#include "services/text.h"

namespace {

int Join(char* buffer, int size, const char* folder, const char* name) {
  return TextFormat(buffer, static_cast<std::size_t>(size), "%s\\%s", folder, name);
}

}  // namespace

int SnryWorldPath(char* buffer, int size) {
  return RootPath(buffer, size, kSnryWorldFolder);
}

int SnryListPath(char* buffer, int size) {
  char world[kRootPathSize];
  SnryWorldPath(world, sizeof world);
  return TextFormat(buffer, static_cast<std::size_t>(size), "%s%s", world, kSnryListName);
}

int SnryMainPath(char* buffer, int size) {
  return Join(buffer, size, Scenario.mainFolder, kSnryMainName);
}

int SnryMainPart(char* buffer, int size, const char* part) {
  return TextFormat(buffer, static_cast<std::size_t>(size), "%s%s", Scenario.mainFolder, part);
}

int SnryScenePath(char* buffer, int size, int folder, int scene) {
  folder = std::clamp(folder, 0, kSnryFolderMax - 1);
  scene = std::clamp(scene, 0, kSnrySceneMax - 1);
  return Join(buffer, size, SnryMain.folders[folder].path, SnryMain.scenes[folder][scene].file);
}
