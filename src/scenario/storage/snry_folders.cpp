#include "scenario/storage/snry_folders.h"

#include <algorithm>
#include <cstring>
#include <iterator>

#include "services/path.h"
#include "services/text.h"

namespace {

constexpr std::size_t kFirstPart = 25;   // bytes of a row's file or folder
constexpr std::size_t kSecondPart = 24;  // and of its name

// The first bytes of a text; a double-byte character that the end would split becomes a
// blank.
void Cut(char* to, const char* text, std::size_t most) {
  const std::size_t whole = TextPrefix(text, most);
  TextCopy(to, whole + 1, text);
  const bool split = whole < most && text[whole] != '\0';
  if (split) TextCopy(to + whole, 2, " ");
}

void RowText(char* text, int size, const char* first, const char* second) {
  char firstPart[kFirstPart + 1];
  char secondPart[kSecondPart + 1];
  Cut(firstPart, first, kFirstPart);
  Cut(secondPart, second, kSecondPart);
  TextFormat(text, static_cast<std::size_t>(size), "[%s]-%s", firstPart, secondPart);
}

template <class T>
void MoveUp(T* table, int from, int count) {
  std::copy(table + from + 1, table + count, table + from);
}

}  // namespace

// kept: a scenario folder too many, or one that the list has already, is left out in silence.
bool SnryFolderAdd(const char* path) {
  const int count = SnryMain.folderCount;
  if (count >= kSnryFolderMax) return false;
  for (int i = 0; i < count; ++i) {
    if (std::strcmp(SnryMain.folders[i].path, path) == 0) return false;
  }
  SnryFolderRec& folder = SnryMain.folders[count];
  folder = {};
  folder.used = 1;
  TextCopy(folder.path, sizeof folder.path, path);
  ++SnryMain.folderCount;
  return true;
}

void SnryFolderRemove(int folder) {
  const int count = SnryMain.folderCount;
  if (folder < 0 || folder >= count) return;
  MoveUp(SnryMain.folders, folder, count);
  MoveUp(SnryMain.sceneCounts, folder, count);
  for (int i = folder + 1; i < count; ++i) {
    std::copy(std::begin(SnryMain.scenes[i]), std::end(SnryMain.scenes[i]), SnryMain.scenes[i - 1]);
  }
  // kept: when a scenario folder is removed, the scene records of the last place stay.
  SnryMain.folders[count - 1] = {};
  SnryMain.sceneCounts[count - 1] = 0;
  --SnryMain.folderCount;
}

void SnryFolderRowText(int folder, char* text, int size) {
  const SnryFolderRec& row = SnryMain.folders[folder];
  PathSplit(row.path);
  RowText(text, size, PathParts.PathName, row.name);
}

void SnrySceneRowText(int scene, char* text, int size) {
  const SnrySceneRec& row = SnryMain.scenes[Scenario.folderIndex][scene];
  RowText(text, size, row.file, row.name);
}

bool SnrySceneAdd(const char* file) {
  if (SnrySceneCountNow() >= kSnrySceneMax) return false;
  Scenario.sceneIndex = SnrySceneCountNow();
  SnrySceneRec& scene = SnrySceneNow();
  scene = {};
  scene.used = 1;
  TextCopy(scene.file, sizeof scene.file, file);
  ++SnrySceneCountNow();
  return true;
}

void SnrySceneRemove(int scene) {
  std::uint16_t& count = SnrySceneCountNow();
  if (scene < 0 || scene >= count) return;
  SnrySceneRec* scenes = SnryMain.scenes[Scenario.folderIndex];
  MoveUp(scenes, scene, count);
  // kept: when a scene is removed, the record of the last place loses its flag only.
  scenes[--count].used = 0;
}

bool SnrySceneHasFile(const char* file) {
  const SnrySceneRec* scenes = SnryMain.scenes[Scenario.folderIndex];
  return std::any_of(scenes, scenes + SnrySceneCountNow(),
                     [file](const SnrySceneRec& scene) { return std::strcmp(scene.file, file) == 0; });
}
