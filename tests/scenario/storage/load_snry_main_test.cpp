// SnryMainLoad: a scenario of the list is loaded.
#include "platform/file.h"
#include "tests/scenario/storage/scenario_dialogs_fixture.h"
#include "tests/support/bitmaps.h"
#include "world/world_pictures.h"

namespace {

using LoadSnryMainTest = ScenarioDialogsTest;

TEST_F(LoadSnryMainTest, AListedScenarioIsLoaded) {
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

// The main folder is entered before it is asked whether there is a row: without a scenario
// it has none.
TEST_F(LoadSnryMainTest, WithoutARowNothingIsLoaded) {
  PutTale();
  for (const int way : {0, 1, 2}) {
    ExpectBox("シナリオフォルダーがありません。", "シナリオロードの中止");
    if (way == 0) ThenPress(1);
    if (way == 1) ThenPress(2);
    if (way == 2) Then([] { PressEscape(TopDialog()); });
    Load();
  }
  EXPECT_STREQ(Scenario.mainFolder, "");
  TextCopy(Scenario.mainFolder, sizeof Scenario.mainFolder, kTale);
  ThenPress(1);
  Load();
  EXPECT_EQ(SnryMain.folderCount, 0);
}

TEST_F(LoadSnryMainTest, ThePicturesAreKeptAsLongAsTheScenarioIsOpen) {
  PutTale();
  MakeFolder("C:\\mirrell\\キャラクタ");
  PutFile("C:\\mirrell\\キャラクタ\\Chara1_1.bmp", BitmapOf(2, 1, std::vector<int>(6)));
  ThenLoadFirst();
  Then([] { EXPECT_NE(WorldPictureOf(1).picture, nullptr); });
  ThenClose();
  Load();
  EXPECT_EQ(WorldPictures.pictures[0], nullptr);
}

// "a later failure to enter the main folder reports シナリオフォルダーがありません。"
TEST_F(LoadSnryMainTest, AMainFolderThatIsGoneIsTold) {
  PutList({{"C:\\mirrell\\消えた", "題"}});
  ExpectBox("シナリオフォルダーがありません。", "シナリオロードの中止");
  ThenLoadFirst();
  Load();
  char current[300];
  FolderGetCurrent(current, sizeof current);
  EXPECT_STREQ(current, "C:\\mirrell\\ワールド");
}

TEST_F(LoadSnryMainTest, AListThatCannotBeOpenedEndsTheLoad) {
  PutList({});
  PutFile(kListFile, "short");
  ExpectBox("シナリオメインリストファイルが正しくありません。削除して新規作成しますか?",
            "シナリオリスト読み込みエラー", BoxAnswer::Cancel);
  ExpectBox("シナリオメインリストファイルを開けません", "シナリオセーブ失敗");
  ExpectBox("シナリオリストファイルを開くことができません。", "シナリオロードの中止");
  Load();
}

TEST_F(LoadSnryMainTest, AMissingOrWrongMainFileIsToldAndTheProgramGoesOn) {
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

}  // namespace
