// The scenes of a scenario folder: made, added, taken out, set up.
#include "resources/scenario_cast_ids.h"
#include "tests/scenario/storage/scenario_dialogs_fixture.h"

namespace {

using SceneDialogsTest = ScenarioDialogsTest;

TEST_F(SceneDialogsTest, ASceneIsMadeWithItsFile) {
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

TEST_F(SceneDialogsTest, ASceneThatCannotBeMadeIsTold) {
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

TEST_F(SceneDialogsTest, FiftyScenesAreTheLimit) {
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

TEST_F(SceneDialogsTest, FilesThatNoSceneUsesCanBeAdded) {
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

TEST_F(SceneDialogsTest, ASceneIsTakenOutAndItsFileStays) {
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

TEST_F(SceneDialogsTest, AScenesEditsAreWrittenByItsConfirm) {
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

TEST_F(SceneDialogsTest, AScenesEditsAreDroppedByAnyOtherEnd) {
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

TEST_F(SceneDialogsTest, ACastThatWasNotConfirmedIsDropped) {
  PutTale();
  ThenOpenScene();
  Then([] {
    MakeChara(1, "ミル", "姫");
    SnryMain.registeredCount = 1;
  });
  ThenPress(IDC_SNRY_CAST_ADD);
  ThenChoose(IDC_CAST_LIST, 0);
  ThenPress(1);
  Then([] {
    EXPECT_EQ(ListRows(TopDialog(), IDC_SNRY_CAST), (ListTexts{"1. ミル [登場名: 姫]"}));
    SnrySceneNow().tableFlags = 1;
  });
  ThenPress(IDC_SNRY_SCENE_START);
  ThenType(IDC_START_SCENE, "町の夜");
  ThenPress(1);
  ThenPress(2);
  ThenPress(IDC_SNRY_SCENE_SET);
  Then([] {
    EXPECT_EQ(ListRows(TopDialog(), IDC_SNRY_CAST), ListTexts());
    EXPECT_EQ(SnrySceneNow().castCount + SnrySceneNow().tableFlags, 0);
    EXPECT_EQ(ControlText(TopDialog(), IDC_SNRY_SCENE_NAME), "町の夜") << "confirmed by itself";
  });
  for (int i = 0; i < 3; ++i) ThenClose();
  Load();
  EXPECT_EQ(FileBytes(kTaleMain).substr(15414 + 68, 4), std::string(4, '\0'));
}

TEST_F(SceneDialogsTest, ASceneThatCannotBeReadOpensOnWhatTheBuffersHold) {
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

TEST_F(SceneDialogsTest, ASceneThatCannotBeWrittenIsToldAndTheDialogStays) {
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

TEST_F(SceneDialogsTest, ANewScenesCastHasItsFiguresAsMotions) {
  PutTale();
  MakeFolder("C:\\mirrell\\キャラクタ");
  PutFile("C:\\mirrell\\キャラクタ\\EDTCFLAG.edf", std::string(4, '\0') + Big32(1) + Big32(0));
  std::string data(1520, '\0');
  At(data, 1440, Little16(5));
  PutFile("C:\\mirrell\\キャラクタ\\EDTCDATA.edf", data);
  ThenOpenChapter();
  ThenPress(IDC_SNRY_SCENE_NEW);
  ExpectBox("新規にファイルを作成しました", "新規場面ファイル作成");
  ThenPress(1);
  Then([] { EXPECT_EQ(SnryCastAt(0).motions[0], 5); });
  for (int i = 0; i < 2; ++i) ThenClose();
  Load();
}

TEST_F(SceneDialogsTest, EveryFileOfAFullFolderCanBeAdded) {
  PutTale();
  for (int i = 0; i < 1100; ++i) PutFile(std::string(kChapter) + "\\" + std::to_string(i) + ".scd", "");
  ThenOpenChapter();
  ThenPress(IDC_SNRY_SCENE_ADD);
  Then([] { EXPECT_EQ(ListRows(TopDialog(), IDC_SNRY_SCENES).size(), 1100U); });
  ThenChoose(IDC_SNRY_SCENES, 1099);
  ThenPress(1);
  Then([] { EXPECT_EQ(Scenes().size(), 2U); });
  for (int i = 0; i < 2; ++i) ThenClose();
  Load();
}

TEST_F(SceneDialogsTest, TheFiguresOfTheWorldGoIntoTheMainFileWithASceneThatIsOpened) {
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

TEST_F(SceneDialogsTest, NoneOpensOverAnother) {
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
