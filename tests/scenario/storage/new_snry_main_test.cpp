// NewSnryMainDlg: a scenario is made.
#include "shell/panel.h"
#include "tests/scenario/storage/scenario_dialogs_fixture.h"

namespace {

constexpr char kNewTale[] = "C:\\mirrell\\ワールド\\冒険";

using NewSnryMainTest = ScenarioDialogsTest;

TEST_F(NewSnryMainTest, ANewScenarioIsMadeInAFolderOfItsOwn) {
  ThenIs(IDD_NewSnryMainDlg);
  Then([] {
    EXPECT_EQ(Panel.FuncNo, 20);
    EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::NewSnryMainDlg);
  });
  ThenType(IDC_SNRY_NEW_NAME, "冒険");
  ExpectBox("シナリオファイルを新規作成しました", "新規シナリオファイルを作成");
  ThenPress(1);
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_RoutSnrySetting);
    EXPECT_EQ(ControlText(TopDialog(), IDC_SNRY_TITLE), "無題");
    EXPECT_EQ(Folders(), ListTexts());
  });
  ThenType(IDC_SNRY_TITLE, "大冒険");
  ThenPress(1);
  CommandSend(Command::ScenarioNew);
  EXPECT_EQ(FolderNames(kNewTale), (ListTexts{"キャラクタ", "サウンド", "シナリオメイン.cff", "背景"}));
  std::string image = MainImage(kNewTale, "大冒険");
  At(image, 2371430,
     Little16(840) + Little16(0) + Little16(400) + Little16(0) + Little16(840) + Little16(0) + Little16(200) +
         Little16(0) + std::string(4, '\0') + "\1");
  EXPECT_TRUE(FileBytes(std::string(kNewTale) + "\\シナリオメイン.cff") == image);
  EXPECT_EQ(FileBytes(kListFile), ListImage({{kNewTale, "大冒険"}}));
  EXPECT_EQ(Panel.FuncNo, 0);
}

TEST_F(NewSnryMainTest, AFolderCanBeTakenAsItIs) {
  ThenOpenFolder("[..]");
  ThenOpenFolder("[物語]");
  ExpectBox("シナリオファイルを新規作成しました", "新規シナリオファイルを作成");
  ThenPress(IDC_SNRY_NEW_AS_IT_IS);
  ThenClose();
  CommandSend(Command::ScenarioNew);
  EXPECT_STREQ(Scenario.mainFolder, kTale);
  EXPECT_EQ(FolderNames(kTale), (ListTexts{"シナリオメイン.cff", "序章"}));
  EXPECT_EQ(FileBytes(kListFile), ListImage({})) << "nothing has been saved";
}

TEST_F(NewSnryMainTest, AFolderThatCannotBeMadeEndsTheNewScenario) {
  MakeFolder(kNewTale);
  for (const char* name : {"冒険", "", "a\\b\\c"}) {
    ThenType(IDC_SNRY_NEW_NAME, name);
    ExpectBox("フォルダーを作成できませんでした", "メインフォルダー作成失敗");
    ThenPress(1);
    CommandSend(Command::ScenarioNew);
  }
  ThenType(IDC_SNRY_NEW_NAME, "新");
  Then([] { FaultArm(FaultKind::Folder, 3); });
  ExpectBox("フォルダーを作成できませんでした", "メインフォルダー作成失敗");
  ThenPress(1);
  CommandSend(Command::ScenarioNew);
}

TEST_F(NewSnryMainTest, NothingIsMadeWhereNobodyCouldTellWhereTheListStands) {
  Then([] { SnryDialogs.folderOnShow[0] = '\0'; });
  ThenType(IDC_SNRY_NEW_NAME, "冒険");
  ExpectBox("フォルダーを作成できませんでした", "メインフォルダー作成失敗");
  ThenPress(1);
  CommandSend(Command::ScenarioNew);
  EXPECT_STREQ(Scenario.mainFolder, "");
}

TEST_F(NewSnryMainTest, TheFolderDialogCanBeLeft) {
  for (const int way : {0, 1, 2}) {
    if (way == 0) ThenPress(kFolderCancelId);
    if (way == 1) Then([] { PressEscape(TopDialog()); });
    if (way == 2) ThenClose();
    CommandSend(Command::ScenarioNew);
  }
  EXPECT_STREQ(Scenario.mainFolder, "");
}

TEST_F(NewSnryMainTest, AScenarioOfTheListIsNotMadeAgain) {
  PutList({{"C:\\x", "x"}, {kTale, "無題"}});
  ThenOpenFolder("[..]");
  ThenOpenFolder("[物語]");
  ExpectBox("同名のシナリオが既に存在します。", "新規シナリオの作成中止");
  ThenPress(IDC_SNRY_NEW_AS_IT_IS);
  CommandSend(Command::ScenarioNew);
  EXPECT_EQ(Scenario.listIndex, 1);
  EXPECT_FALSE(FileThere(kTaleMain));
}

TEST_F(NewSnryMainTest, AWrongMainFileEndsTheNewScenario) {
  PutFile(kTaleMain, std::string(99, 'x'));
  ThenOpenFolder("[..]");
  ThenOpenFolder("[物語]");
  ExpectBox("異常なシナリオメインファイルです", "新規シナリオ作成中止");
  ThenPress(IDC_SNRY_NEW_AS_IT_IS);
  CommandSend(Command::ScenarioNew);
  EXPECT_EQ(FileBytes(kTaleMain), std::string(99, 'x'));
}

TEST_F(NewSnryMainTest, AMainFileThatCannotBeMadeEndsTheNewScenario) {
  ThenOpenFolder("[..]");
  ThenOpenFolder("[物語]");
  Then([] { FaultArmFrom(FaultKind::Write, 1); });
  ExpectBox("シナリオファイルを新規作成できませんでした", "新規シナリオ作成失敗");
  ThenPress(IDC_SNRY_NEW_AS_IT_IS);
  CommandSend(Command::ScenarioNew);
}

// "A new scenario in a folder that already has a valid main file does not load it; the first
// save replaces it with the cleared tables."
TEST_F(NewSnryMainTest, AValidMainFileIsNotLoadedByANewScenarioAndReplacedByTheFirstSave) {
  std::string image = MainImage(kTale, "昔の題");
  At(image, 472, Big16(5));
  At(image, 1488414, Big16(5));
  PutFile(kTaleMain, image);
  ThenOpenFolder("[..]");
  ThenOpenFolder("[物語]");
  ThenPress(IDC_SNRY_NEW_AS_IT_IS);
  Then([image] {
    EXPECT_EQ(Folders(), ListTexts());
    EXPECT_TRUE(FileBytes(kTaleMain) == image) << "not touched yet";
  });
  ThenType(IDC_SNRY_TITLE, "新しい題");
  ThenPress(IDC_SNRY_SAVE);
  ThenClose();
  CommandSend(Command::ScenarioNew);
  const std::string saved = FileBytes(kTaleMain);
  EXPECT_EQ(saved.substr(343, 9), std::string("新しい題") + '\0');
  EXPECT_EQ(saved.substr(472, 2), Big16(0));
  EXPECT_EQ(saved.substr(1488414, 2), Big16(0));
}

// "Deleting a scenario row leaves the main file, so the same folder given again as a new
// scenario finds status 0."
TEST_F(NewSnryMainTest, ADeletedScenarioLeavesItsMainFileForANewOne) {
  PutTale();
  ThenChoose(IDC_SNRY_LIST, 0);
  ExpectBox("シナリオを削除します。よろしいですか", "シナリオの削除", BoxAnswer::Ok);
  ThenPress(IDC_SNRY_LIST_DELETE);
  ThenClose();
  CommandSend(Command::ScenarioDelete);
  EXPECT_EQ(FileBytes(kListFile), ListImage({}));
  EXPECT_TRUE(FileThere(kTaleMain));
  ThenOpenFolder("[..]");
  ThenOpenFolder("[物語]");
  ThenPress(IDC_SNRY_NEW_AS_IT_IS);  // no box: the file is there and right
  ThenClose();
  CommandSend(Command::ScenarioNew);
  EXPECT_EQ(SnryMainStatus(), 0);
}

}  // namespace
