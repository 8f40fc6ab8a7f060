#include "scenario/storage/scenario.h"

#include <algorithm>

SnryListState SnryList;
SnryMainState SnryMain;
SnrySceneState SnryScene;
ScenarioState Scenario;

namespace {

// bounded: an index of a scenario's tables that is out of them is taken as the nearest place.
int Within(std::int32_t index, int size) {
  return std::clamp<std::int32_t>(index, 0, size - 1);
}

int FolderIndex() {
  return Within(Scenario.folderIndex, kSnryFolderMax);
}

}  // namespace

SnryFolderRec& SnryFolderNow() {
  return SnryMain.folders[FolderIndex()];
}

SnrySceneRec& SnrySceneNow() {
  return SnryMain.scenes[FolderIndex()][Within(Scenario.sceneIndex, kSnrySceneMax)];
}

std::uint16_t& SnrySceneCountNow() {
  return SnryMain.sceneCounts[FolderIndex()];
}

SnryParaRec& SnryParaNow() {
  return SnryMain.paras[Within(Scenario.paraSlot, kSnryParaMax)];
}

int SnryCastCount(const SnrySceneRec& scene) {
  return std::min<int>(scene.castCount, kSnrySceneCastMax);
}
