// The folders of a scenario: made, added, taken out, set up.
#include "tests/scenario/storage/scenario_dialogs_fixture.h"

namespace {

using FolderDialogsTest = ScenarioDialogsTest;

TEST_F(FolderDialogsTest, AScenarioFolderIsMade) {
  PutTale();
  ThenLoadFirst();
  ThenPress(IDC_SNRY_FOLDER_NEW);
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_MkNewSnryFolderDlg);
    EXPECT_EQ(ControlText(TopDialog(), IDC_SNRY_FOLDER_NAME), "シナリオ2");
    EXPECT_EQ(ControlText(TopDialog(), IDC_SNRY_FOLDER_PATH), kTale);
  });
  ThenType(IDC_SNRY_FOLDER_NAME, "第二章");
  ExpectBox("フォルダーを新規作成しました", "シナリオフォルダー新規作成");
  ThenPress(1);
  Then([] { EXPECT_EQ(Folders(), (ListTexts{"[序章]-", "[第二章]-"})); });
  ThenClose();
  Load();
  EXPECT_TRUE(FolderThere("C:\\mirrell\\物語\\第二章"));
  EXPECT_EQ(FileBytes(kTaleMain).substr(474 + 496 + 68, 25), std::string("C:\\mirrell\\物語\\第二章\0\0", 25))
      << "the change is saved";
}

TEST_F(FolderDialogsTest, AScenarioFolderThatCannotBeMadeIsTold) {
  PutTale();
  ThenLoadFirst();
  ThenPress(IDC_SNRY_FOLDER_NEW);
  const std::pair<std::string, const char*> rows[] = {{"", "フォルダー名を入力してください"},
                                                      {"序章", "同名のフォルダーがすでに存在します"},
                                                      {"a\\b", "フォルダーを作成できません"},
                                                      {std::string(290, 'a'), "フォルダーを作成できません"}};
  for (const auto& [name, text] : rows) {
    ThenType(IDC_SNRY_FOLDER_NAME, name.c_str());
    ExpectBox(text, "シナリオフォルダー作成失敗");
    ThenPress(1);
    ThenIs(IDD_MkNewSnryFolderDlg);
  }
  ThenPress(2);
  ThenClose();
  Load();
  EXPECT_EQ(SnryMain.folderCount, 1);
}

TEST_F(FolderDialogsTest, AFolderThatIsThereIsAdded) {
  PutTale();
  MakeFolder("C:\\mirrell\\物語\\終章");
  ThenLoadFirst();
  for (const char* folder : {"[終章]", "[序章]"}) {  // the second is in the list already
    ThenPress(IDC_SNRY_FOLDER_ADD);
    ThenIs(IDD_AddSnryFolderDlg);
    ThenOpenFolder(folder);
    ThenPress(1);
    Then([] { EXPECT_EQ(Folders(), (ListTexts{"[序章]-", "[終章]-"})); });
  }
  ThenPress(IDC_SNRY_FOLDER_ADD);
  ThenPress(kFolderCancelId);
  Then([] { EXPECT_EQ(Folders().size(), 2U); });
  ThenClose();
  Load();
}

TEST_F(FolderDialogsTest, ThirtyFoldersAreTheLimit) {
  PutTale();
  ThenLoadFirst();
  Then([] {
    for (int i = 1; i < 30; ++i) SnryFolderAdd(("C:\\" + std::to_string(i)).c_str());
  });
  ExpectBox("シナリオフォルダー数リミットの30個を超えました", "新規フォルダー作成");
  ThenPress(IDC_SNRY_FOLDER_NEW);
  ThenPress(IDC_SNRY_FOLDER_ADD);
  ThenPress(1);
  Then([] { EXPECT_EQ(SnryMain.folderCount, 30); });
  ThenClose();
  Load();
}

TEST_F(FolderDialogsTest, AFolderIsTakenOutOfTheScenarioAndStaysOnTheDisk) {
  PutTale();
  ThenLoadFirst();
  ThenPress(IDC_SNRY_FOLDER_DELETE);  // no row
  ThenChoose(IDC_SNRY_FOLDERS, 0);
  ThenPress(IDC_SNRY_FOLDER_DELETE);
  Then([] { EXPECT_EQ(ControlText(TopDialog(), IDC_SNRY_FOLDER_PATH), kChapter); });
  ThenPress(2);
  Then([] { EXPECT_EQ(Folders().size(), 1U); });
  ThenPress(IDC_SNRY_FOLDER_DELETE);
  ThenPress(1);
  Then([] { EXPECT_EQ(Folders().size(), 0U); });
  ThenClose();
  Load();
  EXPECT_TRUE(FileThere(kScene));
  EXPECT_EQ(FileBytes(kTaleMain).substr(472, 2), Big16(0));
}

TEST_F(FolderDialogsTest, AFoldersNameIsTakenByItsConfirmAndSaved) {
  PutTale();
  ThenOpenChapter();
  Then([] { EXPECT_EQ(ControlText(TopDialog(), IDC_SNRY_FOLDER_PATH), kChapter); });
  ThenType(IDC_SNRY_FOLDER_NAME, "捨てる名");
  ThenClose();
  ThenPress(IDC_SNRY_FOLDER_SET);
  ThenType(IDC_SNRY_FOLDER_NAME, std::string(128, 'n').c_str());
  ThenPress(1);
  Then([] {
    EXPECT_EQ(FileBytes(kTaleMain).substr(474 + 368, 128), std::string(127, 'n') + '\0');
    EXPECT_EQ(Folders(), (ListTexts{"[序章]-" + std::string(24, 'n')}));
    EXPECT_FALSE(Scenario.changed);
  });
  ThenClose();
  Load();
}

}  // namespace
