// The buttons of the scenario's dialogs that open those of characters and casts.
#include "platform/dialog.h"
#include "resources/scenario_cast_ids.h"
#include "resources/scenario_characters_ids.h"
#include "resources/scenario_storage_ids.h"
#include "scenario/scenario_settings.h"
#include "services/commands.h"
#include "tests/scenario/scenario_world.h"

namespace {

class ScenarioDoorsTest : public ScenarioWorldTest {
 protected:
  void SetUp() override {
    ScenarioWorldTest::SetUp();
    Register(1, "郵便屋");
    Register(2, "博士");
    Register(3, "ちび竜");
    Cast({1, 2});
  }
};

TEST_F(ScenarioDoorsTest, TheRegistrationOpensFromTheScenario) {
  ThenPress(IDC_SNRY_CHARACTERS);
  Then([] { EXPECT_EQ(TemplateOf(TopDialog()), IDD_CharaRegiDlg); });
  ThenPress(2);
  Then([] { PressEscape(TopDialog()); });
  RoutSnrySettingRun(Program.hMainWnd);
}

TEST_F(ScenarioDoorsTest, EachButtonOfASceneOpensItsDialogAboutTheChosenMember) {
  const std::pair<int, int> doors[] = {
      {IDC_SNRY_CAST_DELETE, IDD_FileCharaDelDlg},   {IDC_SNRY_CAST_COPY, IDD_FileCharaCopyDlg},
      {IDC_SNRY_CAST_LINES, IDD_SnryCharMessageDlg}, {IDC_SNRY_CAST_MOTIONS, IDD_SnryCharPlayDlg},
      {IDC_SNRY_CAST_ENTRY, IDD_SnryCharEntryDlg},   {IDC_SNRY_CAST_DEPTH, IDD_SnryCharBariaDlg},
  };
  for (const auto& [button, dialog] : doors) {
    ThenPress(button);  // nobody is chosen yet
    Then([] { EXPECT_EQ(TemplateOf(TopDialog()), IDD_SnryFileSetting); });
    ThenChoose(IDC_SNRY_CAST, 1);
    ThenPress(button);
    Then([dialog] {
      EXPECT_EQ(TemplateOf(TopDialog()), dialog);
      EXPECT_EQ(TextIn(IDC_CAST_NAME), "ホーリオ");
    });
    ThenPress(2);
    ThenPress(2);
    SnryFileSettingRun(Program.hMainWnd);
  }
}

TEST_F(ScenarioDoorsTest, TheListOfTheSceneShowsWhoJoinedAndWhoLeft) {
  ThenPress(IDC_SNRY_CAST_ADD);
  ThenChoose(IDC_CAST_LIST, 0);
  ThenPress(1);
  Then([] {
    EXPECT_EQ(RowsIn(IDC_SNRY_CAST), (Rows{"1. ミル [登場名: 郵便屋]", "2. ホーリオ [登場名: 博士]",
                                           "3. メンティ [登場名: ちび竜]"}));
    ChooseRow(TopDialog(), IDC_SNRY_CAST, 1);
  });
  ThenPress(IDC_SNRY_CAST_DELETE);
  ThenPress(1);
  Then([] {
    EXPECT_EQ(RowsIn(IDC_SNRY_CAST), (Rows{"1. ミル [登場名: 郵便屋]", "2. メンティ [登場名: ちび竜]"}));
    EXPECT_EQ(CastIds(), (std::vector<int>{1, 0, 3}));
  });
  ThenPress(2);
  SnryFileSettingRun(Program.hMainWnd);
}

TEST_F(ScenarioDoorsTest, TheBackdropOpensWithoutAMember) {
  ThenPress(IDC_SNRY_SCENE_BACKDROP);
  Then([] { EXPECT_EQ(TemplateOf(TopDialog()), IDD_SnryCharBackDlg); });
  ThenPress(2);
  ThenPress(2);
  SnryFileSettingRun(Program.hMainWnd);
}

TEST_F(ScenarioDoorsTest, ABackgroundIsAddedWhileAScenarioIsEditedAndAtNoOtherTime) {
  CommandSend(Command::ScenarioBackground);
  EXPECT_TRUE(FileDialogsShown().empty());
  MakeFolder("C:\\絵");
  ASSERT_TRUE(PutFile("C:\\絵\\丘.bmp", "hill"));
  ExpectFileDialog("C:\\絵\\丘.bmp");
  Then([] { CommandSend(Command::ScenarioBackground); });
  Then([] { PressEscape(TopDialog()); });
  RoutSnrySettingRun(Program.hMainWnd);
  EXPECT_EQ(FileBytes("C:\\work\\背景\\丘.bmp"), "hill");
}

}  // namespace
