// The program, started without data files, and a maker of scenarios.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/dialog.h"
#include "platform/headless/headless.h"
#include "platform/posix/faults.h"
#include "platform/window.h"
#include "resources/scenario_logic_ids.h"
#include "resources/scenario_storage_ids.h"
#include "scenario/scenario_settings.h"
#include "scenario/storage/scenario.h"
#include "scenario/storage/scenario_dialogs.h"
#include "scenario/storage/snry_cast_list.h"
#include "scenario/storage/snry_folders.h"
#include "scenario/storage/snry_list_file.h"
#include "scenario/storage/snry_main_file.h"
#include "scenario/storage/snry_reset.h"
#include "scenario/storage/snry_scene_file.h"
#include "scenario/storage/snry_tables.h"
#include "services/commands.h"
#include "services/dialog_family.h"
#include "services/folder_list.h"
#include "services/program.h"
#include "services/text.h"
#include "tests/support/program.h"
#include "tests/support/record_check.h"

using ListTexts = std::vector<std::string>;

inline constexpr char kTale[] = "C:\\mirrell\\物語";
inline constexpr char kTaleMain[] = "C:\\mirrell\\物語\\シナリオメイン.cff";
inline constexpr char kChapter[] = "C:\\mirrell\\物語\\序章";
inline constexpr char kScene[] = "C:\\mirrell\\物語\\序章\\町.scd";
inline constexpr char kListFile[] = "C:\\mirrell\\ワールド\\SNRYLIST.sli";

// --- Files made by hand

// Puts bytes, a text or a number into an image of a file.
inline void At(std::string& image, std::size_t at, const std::string& bytes) {
  ASSERT_LE(at + bytes.size(), image.size());
  image.replace(at, bytes.size(), bytes);
}
inline std::string Big16(unsigned value) {
  return {static_cast<char>(value >> 8U), static_cast<char>(value)};
}
inline std::string Big32(unsigned value) {
  return Big16(value >> 16U) + Big16(value & 0xFFFFU);
}
inline std::string Little16(unsigned value) {
  return {static_cast<char>(value), static_cast<char>(value >> 8U)};
}
inline std::string Wide(const std::string& text, std::size_t width) {
  std::string field(width, '\0');
  field.replace(0, text.size(), text);
  return field;
}

// A main file of a scenario without anything.
inline std::string MainImage(const std::string& folder = kTale, const std::string& title = "無題") {
  std::string image(2371558, '\0');
  At(image, 0, "ソルナーデリオン シナリオメイン設定ファイル");
  At(image, 43, folder);
  At(image, 343, title);
  return image;
}

// A list of scenarios by folder and title.
inline std::string ListImage(const std::vector<std::pair<std::string, std::string>>& rows) {
  std::string image =
      "ソルナーデリオン メインシナリオファイル リスト" + Big32(static_cast<unsigned>(rows.size()));
  for (const auto& [folder, title] : rows) {
    image += "\1" + Wide(folder, 300) + Wide(title, 129) + std::string(34, '\0');
  }
  return image;
}

// A scene file with that many lines and members of the cast, all bytes 0 but the counts.
inline std::string SceneImage(unsigned lines = 0, unsigned casts = 0) {
  return "ソルナーデリオン-場面データファイル" + std::string(100 * 1818 + 200 * 236 + 200 * 188, '\0') +
         Big16(lines) + std::string(lines * 181, '\0') + Big16(casts) + std::string(casts * 1638, '\0') +
         std::string(902 + 154 + 200 * 310 + 200 * 76 + 20 * 138 + 2736 + 200 * 54 + 248, '\0');
}

class ScenarioTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    StartProgram();
    MakeFolder(kTale);
    MakeFolder(kChapter);
  }

  void TearDown() override {
    EXPECT_FALSE(FamilyDialogIsUp());
    FaultClear();
    ProgramTest::TearDown();
  }

  // A scenario with a folder and a scene; nothing is on the disk yet.
  static void MakeTale() {
    TextCopy(Scenario.mainFolder, sizeof Scenario.mainFolder, kTale);
    TextCopy(SnryMain.title, sizeof SnryMain.title, "無題");
    EXPECT_TRUE(SnryFolderAdd(kChapter));
    Scenario.folderIndex = 0;
    EXPECT_TRUE(SnrySceneAdd("町.scd"));
  }
  // A parameter in the next slot; returns its id.
  static int MakePara(const char* name) {
    SnryParaRec& para = SnryMain.paras[SnryMain.paraCount++];
    para = {};
    para.used = 1;
    TextCopy(para.name, sizeof para.name, name);
    return SnryMain.paraCount;
  }
  // A registered character of the world with its cast name.
  static void MakeChara(int id, const char* name, const char* castName) {
    SnryMain.registered[id - 1] = 1;
    TextCopy(SnryMain.charaNames[id - 1].text, sizeof SnryMain.charaNames[0].text, name);
    TextCopy(SnryMain.castNames[id - 1].text, sizeof SnryMain.castNames[0].text, castName);
  }
  // The current scene's list of the cast.
  static void Cast(const std::vector<int>& ids) {
    SnrySceneRec& scene = SnrySceneNow();
    scene.castCount = static_cast<std::uint16_t>(ids.size());
    for (std::size_t i = 0; i < ids.size(); ++i) scene.cast[i] = static_cast<std::uint16_t>(ids[i]);
  }

  // --- The user

  static void ThenPress(int id) {
    Then([id] { Press(TopDialog(), id); });
  }
  static void ThenChoose(int list, int row) {
    Then([list, row] { ChooseRow(TopDialog(), list, row); });
  }
  static void ThenType(int field, const char* text) {
    Then([field, text = std::string(text)] { Type(TopDialog(), field, text.c_str()); });
  }
  static void ThenClose() {
    Then([] { PressClose(TopDialog()); });
  }
  // In the folder list that is up then: opens that row.
  static void ThenOpenFolder(const std::string& row) {
    Then([row] {
      const ListTexts rows = ListRows(TopDialog(), kFolderListId);
      for (std::size_t i = 0; i < rows.size(); ++i) {
        if (rows[i] == row) DoubleClickRow(TopDialog(), kFolderListId, static_cast<int>(i));
      }
    });
  }
};
