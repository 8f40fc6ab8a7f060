// A scenario is saved: by its button, at its end.
#include "tests/scenario/storage/scenario_dialogs_fixture.h"

namespace {

using SaveSnryMainTest = ScenarioDialogsTest;

// "A save of a scenario whose main file has a wrong magic fails with シナリオファイルに書き込めません!
// and leaves the file as it was."
TEST_F(SaveSnryMainTest, ASaveOverAWrongMainFileFailsAndLeavesIt) {
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

TEST_F(SaveSnryMainTest, TheSavesButtonUpdatesItsRowOfTheList) {
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

TEST_F(SaveSnryMainTest, ATitleIsCutAt127Bytes) {
  PutTale();
  ThenLoadFirst();
  ThenType(IDC_SNRY_TITLE, std::string(128, 't').c_str());
  ThenPress(1);
  Load();
  EXPECT_EQ(FileBytes(kTaleMain).substr(343, 129), std::string(127, 't') + std::string(2, '\0'));
}

TEST_F(SaveSnryMainTest, AListThatCannotBeWrittenIsToldAndTheMainFileIsSaved) {
  PutTale();
  ThenLoadFirst();
  ThenType(IDC_SNRY_TITLE, "題");
  Then([] { FaultArm(FaultKind::Write, 1); });
  ExpectBox("リストファイルに書き込めません!", "シナリオセーブエラー");
  ThenPress(1);
  Load();
  EXPECT_EQ(FileBytes(kTaleMain).substr(343, 3), std::string("題") + '\0');
}

TEST_F(SaveSnryMainTest, AListThatCannotBeOpenedEndsTheSaveInSilence) {
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

TEST_F(SaveSnryMainTest, AChangedScenarioIsSavedAlsoWhenItsDialogIsJustClosed) {
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

TEST_F(SaveSnryMainTest, AnUnchangedScenarioIsNotWritten) {
  PutTale();
  ThenLoadFirst();
  Then([] { RemoveFile(kTaleMain); });
  Then([] { PressEscape(TopDialog()); });
  Load();
  EXPECT_FALSE(FileThere(kTaleMain));
}

TEST_F(SaveSnryMainTest, AFailedSaveAtTheEndIsTold) {
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

TEST_F(SaveSnryMainTest, TheSaveCommandDoesNothingWithoutAScenario) {
  CommandSend(Command::ScenarioSave);
  EXPECT_FALSE(FolderThere("C:\\mirrell\\ワールド"));
}

}  // namespace
