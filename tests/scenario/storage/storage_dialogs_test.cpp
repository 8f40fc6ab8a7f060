// Scenarios, their folders and scenes, by way of their dialogs.
#include "platform/file.h"
#include "shell/panel.h"
#include "tests/scenario/scenario_fixture.h"

namespace {

constexpr char kNewTale[] = "C:\\mirrell\\ワールド\\冒険";

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

// --- New

TEST_F(ScenarioDialogsTest, ANewScenarioIsMadeInAFolderOfItsOwn) {
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

TEST_F(ScenarioDialogsTest, AFolderCanBeTakenAsItIs) {
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

TEST_F(ScenarioDialogsTest, AFolderThatCannotBeMadeEndsTheNewScenario) {
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

TEST_F(ScenarioDialogsTest, TheFolderDialogCanBeLeft) {
  for (const int way : {0, 1, 2}) {
    if (way == 0) ThenPress(kFolderCancelId);
    if (way == 1) Then([] { PressEscape(TopDialog()); });
    if (way == 2) ThenClose();
    CommandSend(Command::ScenarioNew);
  }
  EXPECT_STREQ(Scenario.mainFolder, "");
}

TEST_F(ScenarioDialogsTest, AScenarioOfTheListIsNotMadeAgain) {
  PutList({{"C:\\x", "x"}, {kTale, "無題"}});
  ThenOpenFolder("[..]");
  ThenOpenFolder("[物語]");
  ExpectBox("同名のシナリオが既に存在します。", "新規シナリオの作成中止");
  ThenPress(IDC_SNRY_NEW_AS_IT_IS);
  CommandSend(Command::ScenarioNew);
  EXPECT_EQ(Scenario.listIndex, 1);
  EXPECT_FALSE(FileThere(kTaleMain));
}

TEST_F(ScenarioDialogsTest, AWrongMainFileEndsTheNewScenario) {
  PutFile(kTaleMain, std::string(99, 'x'));
  ThenOpenFolder("[..]");
  ThenOpenFolder("[物語]");
  ExpectBox("異常なシナリオメインファイルです", "新規シナリオ作成中止");
  ThenPress(IDC_SNRY_NEW_AS_IT_IS);
  CommandSend(Command::ScenarioNew);
  EXPECT_EQ(FileBytes(kTaleMain), std::string(99, 'x'));
}

TEST_F(ScenarioDialogsTest, AMainFileThatCannotBeMadeEndsTheNewScenario) {
  ThenOpenFolder("[..]");
  ThenOpenFolder("[物語]");
  Then([] { FaultArmFrom(FaultKind::Write, 1); });
  ExpectBox("シナリオファイルを新規作成できませんでした", "新規シナリオ作成失敗");
  ThenPress(IDC_SNRY_NEW_AS_IT_IS);
  CommandSend(Command::ScenarioNew);
}

// "A new scenario in a folder that already has a valid main file does not load it; the first
// save replaces it with the cleared tables."
TEST_F(ScenarioDialogsTest, AValidMainFileIsNotLoadedByANewScenarioAndReplacedByTheFirstSave) {
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
TEST_F(ScenarioDialogsTest, ADeletedScenarioLeavesItsMainFileForANewOne) {
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

// --- Load

TEST_F(ScenarioDialogsTest, AListedScenarioIsLoaded) {
  PutTale();
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_SnryMainLoad);
    EXPECT_EQ(Dialogs.DlgIdMenu, MenuDialog::SnryMainLoad);
    EXPECT_EQ(ListRows(TopDialog(), IDC_SNRY_LIST), (ListTexts{"[無題]-C:\\mirrell\\物語"}));
  });
  ThenPress(IDC_SNRY_LIST_DETAIL);
  ThenLoadFirst();
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_RoutSnrySetting);
    EXPECT_EQ(Folders(), (ListTexts{"[序章]-"}));
  });
  ThenClose();
  Load();
  EXPECT_STREQ(Scenario.mainFolder, kTale);
  EXPECT_EQ(Scenario.listIndex, 0);
}

TEST_F(ScenarioDialogsTest, WithoutARowNothingIsLoaded) {
  PutTale();
  ThenPress(1);
  Load();
  ThenPress(2);
  Load();
  Then([] { PressEscape(TopDialog()); });
  Load();
  EXPECT_STREQ(Scenario.mainFolder, "");
}

// "a later failure to enter the main folder reports シナリオフォルダーがありません。"
TEST_F(ScenarioDialogsTest, AMainFolderThatIsGoneIsTold) {
  PutList({{"C:\\mirrell\\消えた", "題"}});
  ExpectBox("シナリオフォルダーがありません。", "シナリオロードの中止");
  ThenLoadFirst();
  Load();
  char current[300];
  FolderGetCurrent(current, sizeof current);
  EXPECT_STREQ(current, "C:\\mirrell\\ワールド");
}

TEST_F(ScenarioDialogsTest, AListThatCannotBeOpenedEndsTheLoad) {
  PutList({});
  PutFile(kListFile, "short");
  ExpectBox("シナリオメインリストファイルが正しくありません。削除して新規作成しますか?",
            "シナリオリスト読み込みエラー", BoxAnswer::Cancel);
  ExpectBox("シナリオメインリストファイルを開けません", "シナリオセーブ失敗");
  ExpectBox("シナリオリストファイルを開くことができません。", "シナリオロードの中止");
  Load();
}

TEST_F(ScenarioDialogsTest, AMissingOrWrongMainFileIsToldAndTheProgramGoesOn) {
  PutTale();
  for (const bool missing : {true, false}) {
    SnryMain.folderCount = 4;
    SnryMain.sceneCounts[3] = 2;
    SnryMain.registeredCount = 9;
    SnryMain.paraCount = 6;
    SnryScene.keys[0].key = 1;
    if (missing) RemoveFile(kTaleMain);
    if (!missing) PutFile(kTaleMain, std::string(500, 'x'));
    missing ? ExpectBox("シナリオファイルーがありません。初期化します。", "シナリオロード")
            : ExpectBox("シナリオファイルーが正しくありません。", "シナリオファイルロードエラー");
    ThenLoadFirst();
    Then([] { EXPECT_EQ(Folders(), ListTexts()); });
    ThenClose();
    Load();
    EXPECT_EQ(SnryMain.folderCount + SnryMain.sceneCounts[3] + SnryMain.registeredCount, 0);
    EXPECT_EQ(SnryScene.keys[0].key, 0);
    EXPECT_EQ(SnryMain.paraCount, 6) << "the rest of what is in memory stays";
  }
}

// --- Save

// "A save of a scenario whose main file has a wrong magic fails with シナリオファイルに書き込めません!
// and leaves the file as it was."
TEST_F(ScenarioDialogsTest, ASaveOverAWrongMainFileFailsAndLeavesIt) {
  PutTale();
  PutFile(kTaleMain, std::string(500, 'x'));
  ExpectBox("シナリオファイルーが正しくありません。", "シナリオファイルロードエラー");
  ThenLoadFirst();
  ExpectBox("シナリオファイルに書き込めません!", "シナリオセーブエラー");
  ThenPress(IDC_SNRY_SAVE);
  ThenClose();
  Load();
  EXPECT_EQ(FileBytes(kTaleMain), std::string(500, 'x'));
}

TEST_F(ScenarioDialogsTest, TheSavesButtonUpdatesItsRowOfTheList) {
  PutList({{"C:\\x", "x"}, {kTale, "無題"}, {"C:\\y", "y"}});
  PutFile(kTaleMain, MainImage());
  ThenChoose(IDC_SNRY_LIST, 1);
  ThenPress(1);
  ThenType(IDC_SNRY_TITLE, "よい題");
  ThenPress(IDC_SNRY_SAVE);
  ThenIs(IDD_RoutSnrySetting);
  ThenClose();
  Load();
  EXPECT_EQ(FileBytes(kListFile), ListImage({{"C:\\x", "x"}, {kTale, "よい題"}, {"C:\\y", "y"}}));
  EXPECT_TRUE(FileBytes(kTaleMain) == MainImage(kTale, "よい題"));
}

TEST_F(ScenarioDialogsTest, ATitleIsCutAt127Bytes) {
  PutTale();
  ThenLoadFirst();
  ThenType(IDC_SNRY_TITLE, std::string(128, 't').c_str());
  ThenPress(1);
  Load();
  EXPECT_EQ(FileBytes(kTaleMain).substr(343, 129), std::string(127, 't') + std::string(2, '\0'));
}

TEST_F(ScenarioDialogsTest, AListThatCannotBeWrittenIsToldAndTheMainFileIsSaved) {
  PutTale();
  ThenLoadFirst();
  ThenType(IDC_SNRY_TITLE, "題");
  Then([] { FaultArm(FaultKind::Write, 1); });
  ExpectBox("リストファイルに書き込めません!", "シナリオセーブエラー");
  ThenPress(1);
  Load();
  EXPECT_EQ(FileBytes(kTaleMain).substr(343, 3), std::string("題") + '\0');
}

TEST_F(ScenarioDialogsTest, AListThatCannotBeOpenedEndsTheSaveInSilence) {
  PutTale();
  ThenLoadFirst();
  Then([] { PutFile(kListFile, "short"); });
  ExpectBox("シナリオメインリストファイルが正しくありません。削除して新規作成しますか?",
            "シナリオリスト読み込みエラー", BoxAnswer::Cancel);
  ExpectBox("シナリオメインリストファイルを開けません", "シナリオセーブ失敗");
  const std::string before = FileBytes(kTaleMain);
  ThenPress(1);
  Load();
  EXPECT_TRUE(FileBytes(kTaleMain) == before);
}

TEST_F(ScenarioDialogsTest, AChangedScenarioIsSavedAlsoWhenItsDialogIsJustClosed) {
  PutTale();
  ThenLoadFirst();
  ThenType(IDC_SNRY_TITLE, "捨てる題");
  Then([] { Scenario.changed = true; });
  Then([] { RemoveFile(kTaleMain); });
  ThenClose();
  Load();
  EXPECT_EQ(FileBytes(kTaleMain).substr(343, 5), std::string("無題") + '\0');
  EXPECT_FALSE(Scenario.changed);
}

TEST_F(ScenarioDialogsTest, AnUnchangedScenarioIsNotWritten) {
  PutTale();
  ThenLoadFirst();
  Then([] { RemoveFile(kTaleMain); });
  Then([] { PressEscape(TopDialog()); });
  Load();
  EXPECT_FALSE(FileThere(kTaleMain));
}

TEST_F(ScenarioDialogsTest, AFailedSaveAtTheEndIsTold) {
  PutTale();
  ThenLoadFirst();
  Then([] {
    Scenario.changed = true;
    FaultArm(FaultKind::Delete, 1);
  });
  ExpectBox("シナリオファイルに書き込めません!", "シナリオセーブエラー");
  ThenClose();
  Load();
}

TEST_F(ScenarioDialogsTest, TheSaveCommandDoesNothingWithoutAScenario) {
  CommandSend(Command::ScenarioSave);
  EXPECT_FALSE(FolderThere("C:\\mirrell\\ワールド"));
}

// --- Delete

TEST_F(ScenarioDialogsTest, ARowOfTheListIsDeletedWhenTheUserAgrees) {
  PutList({{"C:\\x", "x"}, {"C:\\y", "y"}, {"C:\\z", "z"}});
  ThenPress(IDC_SNRY_LIST_DELETE);  // no row, no word
  ThenChoose(IDC_SNRY_LIST, 1);
  ExpectBox("シナリオを削除します。よろしいですか", "シナリオの削除", BoxAnswer::Cancel);
  ThenPress(IDC_SNRY_LIST_DELETE);
  ExpectBox("シナリオを削除します。よろしいですか", "シナリオの削除", BoxAnswer::Ok);
  ThenPress(IDC_SNRY_LIST_DELETE);
  Then([] { EXPECT_EQ(ListRows(TopDialog(), IDC_SNRY_LIST), (ListTexts{"[x]-C:\\x", "[z]-C:\\z"})); });
  ThenPress(2);
  CommandSend(Command::ScenarioDelete);
  EXPECT_EQ(FileBytes(kListFile), ListImage({{"C:\\x", "x"}, {"C:\\z", "z"}}));
}

TEST_F(ScenarioDialogsTest, AListThatCannotBeRewrittenIsTold) {
  PutList({{"C:\\x", "x"}});
  ThenChoose(IDC_SNRY_LIST, 0);
  Then([] { FaultArm(FaultKind::Write, 1); });
  ExpectBox("シナリオを削除します。よろしいですか", "シナリオの削除", BoxAnswer::Ok);
  ExpectBox("シナリオリストファイルをセーブできません", "リストファイルのセーブ失敗");
  ThenPress(IDC_SNRY_LIST_DELETE);
  ThenClose();
  CommandSend(Command::ScenarioDelete);
}

// --- Scenario folders

TEST_F(ScenarioDialogsTest, AScenarioFolderIsMade) {
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

TEST_F(ScenarioDialogsTest, AScenarioFolderThatCannotBeMadeIsTold) {
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

TEST_F(ScenarioDialogsTest, AFolderThatIsThereIsAdded) {
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

TEST_F(ScenarioDialogsTest, ThirtyFoldersAreTheLimit) {
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

TEST_F(ScenarioDialogsTest, AFolderIsTakenOutOfTheScenarioAndStaysOnTheDisk) {
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

TEST_F(ScenarioDialogsTest, AFoldersNameIsTakenByItsConfirmAndSaved) {
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

// --- Scenes

TEST_F(ScenarioDialogsTest, ASceneIsMadeWithItsFile) {
  PutTale();
  ThenOpenChapter();
  ThenPress(IDC_SNRY_SCENE_NEW);
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_MkNewSnryFileDlg);
    EXPECT_EQ(ControlText(TopDialog(), IDC_SNRY_SCENE_FILE), "シーン2");
    EXPECT_EQ(ControlText(TopDialog(), IDC_SNRY_SCENE_NAME), "シーン2");
    EXPECT_EQ(ControlText(TopDialog(), IDC_SNRY_SCENE_EXTENSION), "scd");
    SnryScene.keys[3].key = 9;  // what a new scene inherits
  });
  ThenType(IDC_SNRY_SCENE_NAME, std::string(85, 's').c_str());
  ExpectBox("新規にファイルを作成しました", "新規場面ファイル作成");
  ThenPress(1);
  Then([] { EXPECT_EQ(Scenes(), (ListTexts{"[町.scd]-町の朝", "[シーン2.scd]-" + std::string(24, 's')})); });
  ThenClose();
  ThenClose();
  Load();
  const std::string file = FileBytes(std::string(kChapter) + "\\シーン2.scd");
  EXPECT_EQ(file.size(), SceneImage().size());
  EXPECT_EQ(file[181835 + 6], 2);
  EXPECT_EQ(file[file.size() - 248 - 10800 - 2736 - 2760 + 3 * 138], 9);
  const std::string main = FileBytes(kTaleMain);
  EXPECT_EQ(main.substr(15354, 2), Big16(2));
  EXPECT_EQ(main[15414 + 982], 1);
  EXPECT_EQ(main.substr(15414 + 982 + 602, 81), std::string(79, 's') + '\0' + "シ"[0]);
}

TEST_F(ScenarioDialogsTest, ASceneThatCannotBeMadeIsTold) {
  PutTale();
  ThenOpenChapter();
  ThenPress(IDC_SNRY_SCENE_NEW);
  ThenType(IDC_SNRY_SCENE_FILE, "町");
  ExpectBox("既に同名のファイルが存在します", "新規場面ファイル作成失敗");
  ThenPress(1);
  for (const std::string& name : {std::string(296, 'a'), std::string("a\\b"), std::string("NUL")}) {
    ThenType(IDC_SNRY_SCENE_FILE, name.c_str());
    ExpectBox("ファイルが作成できません", "新規場面ファイル作成失敗");
    ThenPress(1);
  }
  ThenType(IDC_SNRY_SCENE_FILE, "城");
  Then([] { FaultArm(FaultKind::Write, 1); });
  ExpectBox("ファイルが作成できません", "新規場面ファイル作成失敗");
  ThenPress(1);
  Then([] { FaultClear(); });
  ThenPress(2);
  Then([] { EXPECT_EQ(Scenes().size(), 1U); });
  ThenClose();
  ThenClose();
  Load();
}

TEST_F(ScenarioDialogsTest, FiftyScenesAreTheLimit) {
  PutTale();
  PutFile(std::string(kChapter) + "\\余り.scd", "");
  ThenOpenChapter();
  Then([] {
    while (SnrySceneAdd("x")) {
    }
  });
  ExpectBox("場面数リミットの50個を超えました", "新規場面ファイル作成");
  ThenPress(IDC_SNRY_SCENE_NEW);
  ThenPress(IDC_SNRY_SCENE_ADD);
  ThenChoose(IDC_SNRY_SCENES, 0);
  ThenPress(1);
  Then([] { EXPECT_EQ(SnrySceneCountNow(), 50); });
  ThenClose();
  ThenClose();
  Load();
}

TEST_F(ScenarioDialogsTest, FilesThatNoSceneUsesCanBeAdded) {
  PutTale();
  PutFile(std::string(kChapter) + "\\城.scd", "whatever");
  PutFile(std::string(kChapter) + "\\.隠し", "");
  MakeFolder(std::string(kChapter) + "\\中");
  ThenOpenChapter();
  ThenPress(IDC_SNRY_SCENE_ADD);
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_AddSnryFileDlg);
    EXPECT_EQ(ListRows(TopDialog(), IDC_SNRY_SCENES), (ListTexts{"城.scd"}));
    SnryLineAt(5).used = 1;
  });
  ThenPress(IDC_SNRY_SCENE_ALL);
  ThenPress(1);  // no row
  Then([] { EXPECT_EQ(Scenes().size(), 1U); });
  ThenPress(IDC_SNRY_SCENE_ADD);
  ThenChoose(IDC_SNRY_SCENES, 0);
  ThenPress(1);
  Then([] {
    EXPECT_EQ(Scenes(), (ListTexts{"[町.scd]-町の朝", "[城.scd]-"}));
    EXPECT_EQ(SnryLineAt(5).used, 0) << "lines and cast are at their defaults";
  });
  ThenClose();
  ThenClose();
  Load();
  EXPECT_EQ(FileBytes(kTaleMain).substr(15354, 2), Big16(2));
}

TEST_F(ScenarioDialogsTest, ASceneIsTakenOutAndItsFileStays) {
  PutTale();
  ThenOpenChapter();
  ThenPress(IDC_SNRY_SCENE_DELETE);  // no row
  ThenChoose(IDC_SNRY_SCENES, 0);
  ThenPress(IDC_SNRY_SCENE_DELETE);
  Then([] {
    EXPECT_EQ(ControlText(TopDialog(), IDC_SNRY_SCENE_FILE), "町.scd");
    EXPECT_EQ(ControlText(TopDialog(), IDC_SNRY_SCENE_NAME), "町の朝");
  });
  ThenPress(2);
  Then([] { EXPECT_EQ(Scenes().size(), 1U); });
  ThenPress(IDC_SNRY_SCENE_DELETE);
  ThenPress(1);
  Then([] { EXPECT_EQ(Scenes().size(), 0U); });
  ThenClose();
  ThenClose();
  Load();
  EXPECT_TRUE(FileThere(kScene));
}

TEST_F(ScenarioDialogsTest, AScenesEditsAreWrittenByItsConfirm) {
  PutTale();
  ThenOpenScene();
  Then([] {
    EXPECT_EQ(ControlText(TopDialog(), IDC_SNRY_SCENE_NAME), "町の朝");
    SnryScene.menus[0].enabled = 1;
  });
  ThenType(IDC_SNRY_SCENE_NAME, "町の夜");
  ThenPress(1);
  Then([] { EXPECT_EQ(Scenes(), (ListTexts{"[町.scd]-町の夜"})); });
  ThenClose();
  ThenClose();
  Load();
  std::string image = SceneImage();
  image[35] = 1;
  EXPECT_TRUE(FileBytes(kScene) == image);
  EXPECT_EQ(FileBytes(kTaleMain).substr(15414 + 602, 7), std::string("町の夜") + '\0');
}

TEST_F(ScenarioDialogsTest, AScenesEditsAreDroppedByAnyOtherEnd) {
  PutTale();
  for (const int way : {0, 1, 2}) {
    ThenOpenScene();
    Then([] { SnryScene.menus[0].enabled = 1; });
    ThenType(IDC_SNRY_SCENE_NAME, "町の夜");
    if (way == 0) ThenPress(2);
    if (way == 1) Then([] { PressEscape(TopDialog()); });
    if (way == 2) ThenClose();
    ThenPress(IDC_SNRY_SCENE_SET);
    Then([] {
      EXPECT_EQ(SnryScene.menus[0].enabled, 0) << "the file is read again";
      EXPECT_EQ(ControlText(TopDialog(), IDC_SNRY_SCENE_NAME), "町の朝");
    });
    for (int i = 0; i < 3; ++i) ThenClose();
    Load();
  }
  EXPECT_EQ(FileBytes(kScene), SceneImage());
}

TEST_F(ScenarioDialogsTest, ASceneThatCannotBeReadOpensOnWhatTheBuffersHold) {
  PutTale();
  PutFile(kScene, "x");
  ThenLoadFirst();
  Then([] { SnryScene.title.shown = 1; });
  ThenChoose(IDC_SNRY_FOLDERS, 0);
  ThenPress(IDC_SNRY_FOLDER_SET);
  ThenChoose(IDC_SNRY_SCENES, 0);
  ThenPress(IDC_SNRY_SCENE_SET);
  ThenPress(1);
  ThenClose();
  ThenClose();
  Load();
  const std::string file = FileBytes(kScene);
  ASSERT_EQ(file.size(), SceneImage().size());
  EXPECT_EQ(file[266639 + 902], 1);
}

TEST_F(ScenarioDialogsTest, ASceneThatCannotBeWrittenIsToldAndTheDialogStays) {
  PutTale();
  ThenOpenScene();
  Then([] { FaultArm(FaultKind::Write, 3); });
  ExpectBox("シナリオファイルに書き込めません!", "シナリオセーブエラー");
  ThenPress(1);
  ThenIs(IDD_SnryFileSetting);
  ThenPress(1);
  ThenIs(IDD_SnryFolderSetting);
  ThenClose();
  ThenClose();
  Load();
  EXPECT_EQ(FileBytes(kScene), SceneImage());
}

TEST_F(ScenarioDialogsTest, TheFiguresOfTheWorldGoIntoTheMainFileWithASceneThatIsOpened) {
  PutTale();
  MakeFolder("C:\\mirrell\\キャラクタ");
  PutFile("C:\\mirrell\\キャラクタ\\EDTCFLAG.edf", std::string(4, '\0') + Big32(1) + Big32(0));
  std::string data(1520, '\0');
  At(data, 1440, Little16(5));
  PutFile("C:\\mirrell\\キャラクタ\\EDTCDATA.edf", data);
  ThenOpenScene();
  Then([] { EXPECT_EQ(SnryMain.charMotions[0].figures[0], 5); });
  for (int i = 0; i < 3; ++i) ThenClose();
  Load();
}

TEST_F(ScenarioDialogsTest, NoneOpensOverAnother) {
  PutTale();
  ThenOpenScene();
  Then([] {
    const int windows = OpenWindowCount();
    for (const Command command : {Command::ScenarioLoad, Command::ScenarioNew, Command::ScenarioDelete})
      CommandSend(command);
    EXPECT_EQ(OpenWindowCount(), windows);
  });
  for (int i = 0; i < 3; ++i) ThenClose();
  Load();
}

}  // namespace
