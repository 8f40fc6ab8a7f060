#include "tests/scenario/looks/looks_fixture.h"

namespace {

constexpr char kDeleteText[] = "スクロール背景を削除します";
constexpr char kDeleteCaption[] = "スクロール背景削除";

class SnryBackScrollDlgTest : public LooksTest {
 protected:
  void SetUp() override {
    LooksTest::SetUp();
    for (const char* name : {"hill.bmp", "sea.bmp"}) {
      PutFile("C:\\mirrell\\scenario\\背景\\" + std::string(name), "x");
    }
  }
  static void Run() { SnryBackScrollDlgRun(Program.hMainWnd); }
  static SnryScrollRec& Scroll() { return SnryScene.scroll; }
  static void Backgrounds(int count) {
    Scroll().count = static_cast<std::uint8_t>(count);
    for (int i = 0; i < count && i < 10; ++i) Put(Scroll().backgrounds[i], "b" + std::to_string(i));
  }
};

TEST_F(SnryBackScrollDlgTest, ABackgroundIsAddedFromTheFiles) {
  Then([] {
    EXPECT_EQ(ListRows(TopDialog(), IDC_SCROLL_FILES).at(0), "未設定");
    EXPECT_EQ(Sorted(ListRows(TopDialog(), IDC_SCROLL_FILES)), (Lines{"hill.bmp", "sea.bmp", "未設定"}));
    ChooseRow(TopDialog(), IDC_SCROLL_FILES, RowOf(IDC_SCROLL_FILES, "sea.bmp"));
  });
  ThenAsked(IDC_SCROLL_ADD, "スクロール背景を追加します", "スクロール背景追加");
  Then([] { EXPECT_EQ(ListRows(TopDialog(), IDC_SCROLL_CHOSEN), (Lines{"sea.bmp"})); });
  ThenPress(kOkButton);
  Run();
  EXPECT_EQ(Scroll().count, 1);
  EXPECT_STREQ(Scroll().backgrounds[0], "sea.bmp");
}

TEST_F(SnryBackScrollDlgTest, TenBackgroundsAreTheMost) {
  Backgrounds(10);
  ThenChoose(IDC_SCROLL_FILES, 1);
  ThenAsked(IDC_SCROLL_ADD, "設定できるスクロール背景は最大10個です", "スクロール背景追加エラー");
  ThenPress(kOkButton);
  Run();
  EXPECT_EQ(Scroll().count, 10);
}

TEST_F(SnryBackScrollDlgTest, WithNineADeleteAsksNothingWithTenItAsks) {
  Backgrounds(10);
  ThenChoose(IDC_SCROLL_CHOSEN, 3);
  ThenAsked(IDC_SCROLL_DELETE, kDeleteText, kDeleteCaption, BoxAnswer::Cancel);
  Then([] { EXPECT_EQ(Scroll().count, 10); });
  ThenChoose(IDC_SCROLL_CHOSEN, 3);
  ThenAsked(IDC_SCROLL_DELETE, kDeleteText, kDeleteCaption);
  ThenChoose(IDC_SCROLL_CHOSEN, 0);
  ThenPress(IDC_SCROLL_DELETE);
  ThenPress(kOkButton);
  Run();
  EXPECT_EQ(Scroll().count, 8);
  EXPECT_STREQ(Scroll().backgrounds[0], "b1");
  EXPECT_STREQ(Scroll().backgrounds[2], "b4");
  EXPECT_STREQ(Scroll().backgrounds[7], "b9");
}

TEST_F(SnryBackScrollDlgTest, AChangeNeedsARowOfBothLists) {
  Backgrounds(2);
  ThenChooseText(IDC_SCROLL_FILES, "hill.bmp");
  ThenPress(IDC_SCROLL_CHANGE);
  ThenChoose(IDC_SCROLL_CHOSEN, 1);
  ThenAsked(IDC_SCROLL_CHANGE, "スクロール背景を変更します", "スクロール背景変更");
  ThenPress(kOkButton);
  Run();
  EXPECT_STREQ(Scroll().backgrounds[0], "b0");
  EXPECT_STREQ(Scroll().backgrounds[1], "hill.bmp");
}

TEST_F(SnryBackScrollDlgTest, ACountBeyondTheTableIsHeldInsideIt) {
  Backgrounds(10);
  Scroll().count = 200;
  Then([] {
    EXPECT_EQ(ListRows(TopDialog(), IDC_SCROLL_CHOSEN).size(), 10u);
    PressEscape(TopDialog());
  });
  Run();
}

TEST_F(SnryBackScrollDlgTest, AConditionTakesParameterValueSpeedAndDirection) {
  ThenChoose(IDC_SCROLL_PARA, 2);
  ThenType(IDC_SCROLL_VALUE, "99999");
  ThenChoose(IDC_SCROLL_SPEED, 25);
  ThenPress(IDC_SCROLL_LEFT);
  ThenAsked(IDC_SCROLL_PLACE_ADD, "パラメータを追加します", "パラメータ追加");
  Then([] {
    EXPECT_EQ(ListRows(TopDialog(), IDC_SCROLL_PLACES), (Lines{"1.扉"}));
    ChooseRow(TopDialog(), IDC_SCROLL_PLACES, 0);
    EXPECT_TRUE(ControlIsChecked(TopDialog(), IDC_SCROLL_LEFT));
    Press(TopDialog(), IDC_SCROLL_UP);
    EXPECT_EQ(Scroll().directions[0], 3);
  });
  ThenAsked(IDC_SCROLL_PLACE_CHANGE, "パラメータを変更します", "パラメータ変更");
  ThenPress(kOkButton);
  Run();
  EXPECT_EQ(Scroll().parameters[0], 3);
  EXPECT_EQ(Scroll().values[0], 65535);
  EXPECT_EQ(Scroll().speeds[0], 25);
  EXPECT_EQ(Scroll().directions[0], 0);
}

TEST_F(SnryBackScrollDlgTest, ASpeedThatTheListDoesNotHaveStaysUntilAnotherIsChosen) {
  Scroll().parameters[0] = 1;
  Scroll().speeds[0] = 26;
  ThenChoose(IDC_SCROLL_PLACES, 0);
  ThenType(IDC_SCROLL_VALUE, "5");
  ThenAsked(IDC_SCROLL_PLACE_CHANGE, "パラメータを変更します", "パラメータ変更");
  ThenPress(kOkButton);
  Run();
  EXPECT_EQ(Scroll().values[0], 5);
  EXPECT_EQ(Scroll().speeds[0], 26);
}

TEST_F(SnryBackScrollDlgTest, ADeletedBackgroundLeavesWhatStandsBehindTheChosenOnes) {
  Backgrounds(10);
  Scroll().count = 3;
  ThenChoose(IDC_SCROLL_CHOSEN, 1);
  ThenPress(IDC_SCROLL_DELETE);
  ThenPress(kOkButton);
  Run();
  EXPECT_STREQ(Scroll().backgrounds[1], "b2");
  EXPECT_STREQ(Scroll().backgrounds[2], "");
  EXPECT_STREQ(Scroll().backgrounds[3], "b3");
}

TEST_F(SnryBackScrollDlgTest, DeletingAConditionMovesAllItsFields) {
  for (int place = 0; place < 3; ++place) {
    Scroll().parameters[place] = 1;
    Scroll().values[place] = static_cast<std::uint16_t>(place);
    Scroll().speeds[place] = static_cast<std::uint8_t>(10 + place);
    Scroll().directions[place] = static_cast<std::uint8_t>(place);
  }
  ThenChoose(IDC_SCROLL_PLACES, 0);
  ThenAsked(IDC_SCROLL_PLACE_DELETE, "パラメータを削除します", "パラメータ削除");
  ThenPress(kOkButton);
  Run();
  EXPECT_EQ(Scroll().values[0], 1);
  EXPECT_EQ(Scroll().speeds[1], 12);
  EXPECT_EQ(Scroll().directions[1], 2);
  EXPECT_EQ(Scroll().parameters[2], 0);
}

TEST_F(SnryBackScrollDlgTest, TwentyConditionsAreTheMost) {
  for (auto& parameter : Scroll().parameters) parameter = 1;
  ThenAsked(IDC_SCROLL_PLACE_ADD, "設定できるパラメータは最大20個です", "条件パラメータ追加エラー");
  ThenPress(kOkButton);
  Run();
}

TEST_F(SnryBackScrollDlgTest, SwitchesActAtOnceAndTheCharacterAtTheEnd) {
  SnryMain.charaCount = 2;
  Put(SnryMain.charaNames[0].text, "猫");
  Put(SnryMain.charaNames[1].text, "犬");
  ThenPress(IDC_SCROLL_ENABLED);
  ThenPress(IDC_SCROLL_MANUAL_RIGHT);
  Then([] {
    EXPECT_EQ(Scroll().enabled, 1);
    EXPECT_EQ(Scroll().manualRight, 1);
    EXPECT_EQ(ListRows(TopDialog(), IDC_SCROLL_CHARACTER), (Lines{"未設定", "猫", "犬"}));
    ChooseRow(TopDialog(), IDC_SCROLL_CHARACTER, 2);
    EXPECT_EQ(Scroll().character, 0);
    Press(TopDialog(), kOkButton);
  });
  Run();
  EXPECT_EQ(Scroll().character, 2);
}

}  // namespace
