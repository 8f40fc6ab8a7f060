// Scenarios, their folders and scenes, by way of their dialogs.
#pragma once

#include "tests/scenario/scenario_fixture.h"

class ScenarioDialogsTest : public ScenarioTest {
 protected:
  static ListTexts Folders() { return ListRows(Dialogs.hMenuDlg, IDC_SNRY_FOLDERS); }
  static ListTexts Scenes() { return ListRows(Dialogs.hToolDlg, IDC_SNRY_SCENES); }

  static void PutList(const std::vector<std::pair<std::string, std::string>>& rows) {
    MakeFolder("C:\\mirrell\\ワールド");
    PutFile(kListFile, ListImage(rows));
  }
  // The tale stands in the list and on the disk; the load leads to RoutSnrySetting.
  static void PutTale() {
    PutList({{kTale, "無題"}});
    std::string image = MainImage();
    At(image, 472, Big16(1));
    At(image, 474, "\1");
    At(image, 474 + 68, kChapter);
    At(image, 15354, Big16(1));
    At(image, 15414, "\1");
    At(image, 15414 + 602, "町の朝");
    At(image, 15414 + 682, "町.scd");
    PutFile(kTaleMain, image);
    PutFile(kScene, SceneImage());
  }
  static void ThenLoadFirst() {
    ThenChoose(IDC_SNRY_LIST, 0);
    ThenPress(1);
  }
  static void Load() { CommandSend(Command::ScenarioLoad); }
  static void ThenIs(int templateId) {
    Then([templateId] { EXPECT_EQ(TemplateOf(TopDialog()), templateId); });
  }
  // To SnryFolderSetting of the first folder.
  static void ThenOpenChapter() {
    ThenLoadFirst();
    ThenChoose(IDC_SNRY_FOLDERS, 0);
    ThenPress(IDC_SNRY_FOLDER_SET);
    ThenIs(IDD_SnryFolderSetting);
  }
  static void ThenOpenScene() {
    ThenOpenChapter();
    ThenChoose(IDC_SNRY_SCENES, 0);
    ThenPress(IDC_SNRY_SCENE_SET);
    ThenIs(IDD_SnryFileSetting);
  }
};
