// A scenario of folders and scenes on the disk, and a walker of its own over what they
// hold.
#pragma once

#include <cstring>
#include <string>
#include <vector>

#include "platform/file.h"
#include "scenario/storage/scenario.h"
#include "scenario/storage/snry_scene_file.h"
#include "scenario/storage/snry_tables.h"
#include "scenario/trace/snry_walk.h"
#include "services/state.h"
#include "services/text.h"
#include "tests/support/program.h"
#include "world/world_list.h"

using Lines = std::vector<std::string>;

// What a scene's file holds.
struct SceneData {
  SnrySceneState scene{};
  std::vector<SnryCastRec> casts = std::vector<SnryCastRec>(kSnryCastSlots);
  std::vector<SnryLineRec> lines = std::vector<SnryLineRec>(16);
};

class TraceTest : public ProgramTest {
 protected:
  static constexpr int kFolders = 4;

  void SetUp() override {
    ProgramTest::SetUp();
    StartProgram();
    StateReset(SnryMain);
    for (int id = 1; id <= 4; ++id) {
      SnryMain.registered[id - 1] = 1;
      Put(SnryMain.castNames[id - 1].text, "人物" + std::to_string(id));
    }
    World.WorldFigureCount = 3;
    for (int id = 1; id <= 3; ++id) {
      Put(World.WorldFigures[id - 1].name, "動作" + std::to_string(id));
    }
  }

  template <std::size_t N>
  static void Put(char (&field)[N], const std::string& text) {
    TextCopy(field, N, text.c_str());
  }

  static void UsePara(int id, const std::string& name, int initial) {
    SnryParaRec& para = SnryMain.paras[id - 1];
    para.used = 1;
    para.initial = static_cast<std::uint16_t>(initial);
    Put(para.name, name);
    if (SnryMain.paraCount < id) SnryMain.paraCount = static_cast<std::uint16_t>(id);
  }

  static SnryFolderRec& AddFolder(const std::string& name) {
    const int folder = SnryMain.folderCount++;
    SnryFolderRec& record = SnryMain.folders[folder];
    record.used = 1;
    Put(record.path, "C:\\mirrell\\s" + std::to_string(folder));
    MakeFolder(record.path);
    Put(record.name, name);
    return record;
  }

  // A scene of the last folder, with its file.
  SnrySceneRec& AddScene(const std::string& name, const SceneData& data, const std::vector<int>& cast = {}) {
    const int folder = SnryMain.folderCount - 1;
    const int scene = SnryMain.sceneCounts[folder]++;
    SnrySceneRec& record = SnryMain.scenes[folder][scene];
    record.used = 1;
    Put(record.name, name);
    Put(record.file, "scene" + std::to_string(scene) + ".snf");
    record.castCount = static_cast<std::uint16_t>(cast.size());
    for (std::size_t i = 0; i < cast.size(); ++i) record.cast[i] = static_cast<std::uint16_t>(cast[i]);
    Fill(data);
    EXPECT_EQ(SnrySceneSave(folder, scene), 0);
    return record;
  }

  static void Fill(const SceneData& data) {
    SnryScene = data.scene;
    for (int slot = 0; slot < kSnryCastSlots; ++slot)
      SnryCastAt(slot) = data.casts[static_cast<std::size_t>(slot)];
    for (int slot = 0; slot < kSnryLineSlots; ++slot) SnryLineAt(slot) = {};
    for (std::size_t slot = 0; slot < data.lines.size(); ++slot) {
      SnryLineAt(static_cast<int>(slot)) = data.lines[slot];
    }
  }

  static void Keep(void* lines, const char* text) { static_cast<Lines*>(lines)->push_back(text); }
  static Lines Changes(int id) {
    Lines lines;
    SnryWalkChange(id - 1, {Keep, &lines});
    return lines;
  }
  static Lines Progress(int id, int value) {
    Lines lines;
    SnryWalkProgress(id - 1, value, {Keep, &lines});
    return lines;
  }
};
