#include "tests/scenario/looks/looks_fixture.h"

namespace {

class SnryOptionDlgTest : public LooksTest {
 protected:
  void SetUp() override {
    LooksTest::SetUp();
    SnryMain.options.stageWidth = 840;
    SnryMain.options.stageHeight = 400;
    SnryMain.options.menuWidth = 840;
    SnryMain.options.menuHeight = 200;
  }
  static void Run() { SnryOptionDlgRun(Program.hMainWnd); }
  static void Enter(const char* width, const char* height, const char* menuWidth, const char* menuHeight) {
    Then([=] {
      Type(TopDialog(), IDC_OPTION_STAGE_WIDTH, width);
      Type(TopDialog(), IDC_OPTION_STAGE_HEIGHT, height);
      Type(TopDialog(), IDC_OPTION_MENU_WIDTH, menuWidth);
      Type(TopDialog(), IDC_OPTION_MENU_HEIGHT, menuHeight);
      Press(TopDialog(), kOkButton);
    });
    Run();
  }
};

TEST_F(SnryOptionDlgTest, AHeightOf1000IsKeptAnd1001Becomes1000) {
  Enter("1200", "1000", "1200", "1000");
  EXPECT_EQ(SnryMain.options.stageHeight, 1000);
  Enter("1201", "1001", "1201", "1001");
  EXPECT_EQ(SnryMain.options.stageWidth, 1200);
  EXPECT_EQ(SnryMain.options.stageHeight, 1000);
  EXPECT_EQ(SnryMain.options.menuWidth, 1200);
  EXPECT_EQ(SnryMain.options.menuHeight, 1000);
}

TEST_F(SnryOptionDlgTest, TheStageIsAtLeast50) {
  Enter("49", "-3", "60", "50");
  EXPECT_EQ(SnryMain.options.stageWidth, 50);
  EXPECT_EQ(SnryMain.options.stageHeight, 50);
}

TEST_F(SnryOptionDlgTest, AMenuFrameWidthOfZeroIsAccepted) {
  Enter("840", "400", "0", "0");
  EXPECT_EQ(SnryMain.options.menuWidth, 0);
  EXPECT_EQ(SnryMain.options.menuHeight, 0);
}

TEST_F(SnryOptionDlgTest, FourCharactersAreRead) {
  Enter("08400", "400", "840", "200");
  EXPECT_EQ(SnryMain.options.stageWidth, 840);
}

TEST_F(SnryOptionDlgTest, RowsAreStoredAndMarkTheScenario) {
  Then([] {
    EXPECT_EQ(ListRows(TopDialog(), IDC_OPTION_MENU_POSITION).size(), 17u);
    EXPECT_EQ(ListRows(TopDialog(), IDC_OPTION_MENU_FORMAT).size(), 9u);
    EXPECT_EQ(ListRows(TopDialog(), IDC_OPTION_READING).size(), 9u);
    EXPECT_EQ(ListRows(TopDialog(), IDC_OPTION_BALLOON).size(), 12u);
  });
  ThenChoose(IDC_OPTION_MENU_POSITION, 16);
  ThenChoose(IDC_OPTION_MENU_FORMAT, 8);
  ThenChoose(IDC_OPTION_READING, 7);
  ThenChoose(IDC_OPTION_BALLOON, 11);
  ThenPress(kOkButton);
  Run();
  EXPECT_EQ(SnryMain.options.menuPosition, 16);
  EXPECT_EQ(SnryMain.options.menuFormat, 8);
  EXPECT_EQ(SnryMain.options.readingSpeed, 7);
  EXPECT_EQ(SnryMain.options.balloonFormat, 11);
  EXPECT_TRUE(Scenario.changed);
}

TEST_F(SnryOptionDlgTest, CancelStoresNothing) {
  ThenType(IDC_OPTION_STAGE_WIDTH, "99");
  ThenPress(kCancelButton);
  Run();
  EXPECT_EQ(SnryMain.options.stageWidth, 840);
  EXPECT_FALSE(Scenario.changed);
}

// --- The status bar

TEST_F(SnryOptionDlgTest, TheStatusBarIsSetInADialogOfItsOwn) {
  ThenPress(IDC_OPTION_STATUS_BAR);
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_StsBarSettingDlg);
    EXPECT_EQ(ListRows(TopDialog(), IDC_STATUS_TIME).size(), 10u);
    Press(TopDialog(), IDC_STATUS_SHOWN);
    ChooseRow(TopDialog(), IDC_STATUS_TIME, 6);
    Press(TopDialog(), kOkButton);
  });
  ThenPress(kCancelButton);
  Run();
  EXPECT_EQ(SnryMain.options.statusBar, 1);
  EXPECT_EQ(SnryMain.options.statusTime, 6);
}

TEST_F(SnryOptionDlgTest, CancelDropsTheStatusBar) {
  ThenPress(IDC_STATUS_SHOWN);
  ThenChoose(IDC_STATUS_TIME, 6);
  ThenPress(kCancelButton);
  StsBarSettingDlgRun(Program.hMainWnd);
  EXPECT_EQ(SnryMain.options.statusBar, 0);
  EXPECT_EQ(SnryMain.options.statusTime, 0);
}

TEST_F(SnryOptionDlgTest, ATimeThatIsNoneOfTheListShowsAsDashesAndStays) {
  SnryMain.options.statusTime = 77;
  Then([] {
    EXPECT_EQ(ListRows(TopDialog(), IDC_STATUS_TIME).at(10), "----");
    EXPECT_EQ(ListSelected(TopDialog(), IDC_STATUS_TIME), 10);
    Press(TopDialog(), kOkButton);
  });
  StsBarSettingDlgRun(Program.hMainWnd);
  EXPECT_EQ(SnryMain.options.statusTime, 77);
}

}  // namespace
