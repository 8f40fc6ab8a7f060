// The scenario that is being made: the tables of its main file, the buffers of one scene,
// and what the dialogs are at. One scenario and one scene are held at a time.
//
// The records are those of storage/snry_records.h and storage/snry_scene_records.h; lines
// and cast lie in the work blocks (storage/snry_tables.h). Counts are held inside their
// tables by the readers; ids and rows inside the records are not, and whoever follows one
// looks whether it is there.
#pragma once

#include <cstdint>

#include "scenario/storage/snry_records.h"
#include "scenario/storage/snry_scene_records.h"

inline constexpr int kSnryListMax = 1024;
inline constexpr int kSnryFolderMax = 30;
inline constexpr int kSnrySceneMax = 50;  // of one scenario folder
inline constexpr int kSnryCharaMax = 512;
inline constexpr int kSnryParaMax = 2048;
inline constexpr int kSnryMotionMax = 256;
inline constexpr int kSnryLabelMax = 10;

inline constexpr int kSnryMenuMax = 100;
inline constexpr int kSnryEventMax = 200;
inline constexpr int kSnryRandomMax = 200;
inline constexpr int kSnrySoundMax = 200;
inline constexpr int kSnryKeyMax = 20;

// The list of scenarios.
struct SnryListState {
  std::int32_t count = 0;  // 0 to 1024
  SnryListRec rows[kSnryListMax] = {};
};
extern SnryListState SnryList;

// What the main file holds.
struct SnryMainState {
  char title[kSnryTitleSize] = {};
  std::uint16_t folderCount = 0;  // 0 to 30
  SnryFolderRec folders[kSnryFolderMax] = {};
  std::uint16_t sceneCounts[kSnryFolderMax] = {};  // of each folder, 0 to 50
  SnrySceneRec scenes[kSnryFolderMax][kSnrySceneMax] = {};
  std::uint16_t registeredCount = 0;  // of characters; no number of flags
  SnryCharMotionRec charMotions[kSnryCharaMax] = {};
  std::uint16_t paraCount = 0;  // one behind the highest slot that was given, 0 to 2048
  SnryParaRec paras[kSnryParaMax] = {};
  std::uint16_t charaCount = 0;  // of the world, 0 to 512
  SnryNumberRec charaOrders[kSnryCharaMax] = {};
  std::uint8_t registered[kSnryCharaMax] = {};
  SnryNameRec charaNames[kSnryCharaMax] = {};
  SnryNameRec castNames[kSnryCharaMax] = {};  // under which they come on stage
  std::uint8_t charaKept[kSnryCharaMax] = {};
  std::uint16_t motionCount = 0;  // 0 to 256
  SnryNameRec motionNames[kSnryMotionMax] = {};
  SnryLabelRec labels[kSnryLabelMax] = {};
  SnryOptionRec options = {};
};
extern SnryMainState SnryMain;

// The buffers of a scene, but for its lines and its cast.
struct SnrySceneState {
  SnryMenuRec menus[kSnryMenuMax] = {};
  SnryEventRec events[kSnryEventMax] = {};
  SnryRandomRec randoms[kSnryRandomMax] = {};
  SnryBackdropRec backdrop = {};
  SnryTitleRec title = {};
  SnrySoundRec sounds[kSnrySoundMax] = {};
  SnryRandomExRec randomExs[kSnryRandomMax] = {};
  SnryKeyRec keys[kSnryKeyMax] = {};
  SnryScrollRec scroll = {};
  SnryEventExRec eventExs[kSnryEventMax] = {};
  SnryTableRec table = {};
};
extern SnrySceneState SnryScene;

struct ScenarioState {
  char mainFolder[kSnryPathSize + 1] = {};
  std::int32_t listIndex = 0;    // of the current scenario; SnryList.count for a new one
  std::int32_t folderIndex = 0;  // the current scenario folder ...
  std::int32_t sceneIndex = 0;   // ... scene ...
  std::int32_t paraSlot = 0;     // ... and parameter
  bool changed = false;          // set by every edit that is confirmed, cleared by a save
  bool sceneListChanged = false;
  bool castNamesChanged = false;
  std::int32_t castRow = -1;      // that is chosen in the list of SnryFileSetting
  SnrySceneRec sceneBefore = {};  // the current scene's record as SnryFileSetting found it
};
extern ScenarioState Scenario;

// The current folder, scene and parameter; an index that the tables have not is held
// inside them.
SnryFolderRec& SnryFolderNow();
SnrySceneRec& SnrySceneNow();
std::uint16_t& SnrySceneCountNow();
SnryParaRec& SnryParaNow();

// The places of a scene's cast list that are in use, 0 to 256.
int SnryCastCount(const SnrySceneRec& scene);
