#include "tests/scenario/looks/looks_fixture.h"

namespace {

constexpr char kAddText[] = "キー/マウス割付を追加します";
constexpr char kAddCaption[] = "割付の追加";
constexpr char kPlaceText[] = "パラメータを追加";
constexpr char kPlaceCaption[] = "パラメータの追加";

class SceenKeyDlgTest : public LooksTest {
 protected:
  static void Run() { SceenKeyDlgRun(Program.hMainWnd); }
  static SnryKeyRec& Use(int slot, int key, const std::string& name) {
    SnryKeyRec& record = SnryScene.keys[slot];
    record.key = static_cast<std::uint8_t>(key);
    Put(record.name, name);
    return record;
  }
  static Lines Rows() { return ListRows(TopDialog(), IDC_KEY_ROWS); }
  static Lines Places() { return ListRows(TopDialog(), IDC_KEY_PLACES); }
};

TEST_F(SceenKeyDlgTest, RowsTellTheKeyAndTheName) {
  Use(0, 1, "決定");
  Use(3, 63, "引く");
  Then([] {
    EXPECT_EQ(Rows(), (Lines{"[ Enter ] - 決定", "[ マウス右ドラッグ ] - 引く"}));
    EXPECT_EQ(ListRows(TopDialog(), IDC_KEY_KEY).size(), 63u);
    EXPECT_EQ(ListRows(TopDialog(), IDC_KEY_SPEED).size(), 20u);
    EXPECT_EQ(ListRows(TopDialog(), IDC_KEY_SPEED).at(9), "0.1秒");
    PressEscape(TopDialog());
  });
  Run();
}

TEST_F(SceenKeyDlgTest, AnAddedKeyHasNoCursorSyncUntilItIsChanged) {
  ThenChoose(IDC_KEY_KEY, 17);
  ThenType(IDC_KEY_NAME, std::string(40, 'n'));
  ThenChoose(IDC_KEY_SPEED, 19);
  ThenPress(IDC_KEY_SYNC_START);
  ThenPress(IDC_KEY_SIDEWARDS);
  ThenAsked(IDC_KEY_ADD, kAddText, kAddCaption);
  Then([] {
    EXPECT_EQ(SnryScene.keys[0].cursorSync, 0);
    EXPECT_EQ(SnryScene.keys[0].axes, 0);
    ChooseRow(TopDialog(), IDC_KEY_ROWS, 0);
    EXPECT_FALSE(ControlIsChecked(TopDialog(), IDC_KEY_SYNC_START));
  });
  ThenPress(IDC_KEY_SYNC_END);
  ThenPress(IDC_KEY_UP_DOWN);
  ThenAsked(IDC_KEY_CHANGE, "キー/マウス割付を変更します。", "割付の変更");
  ThenPress(kOkButton);
  Run();
  const SnryKeyRec& key = SnryScene.keys[0];
  EXPECT_EQ(key.key, 18);
  EXPECT_EQ(std::string(key.name), std::string(32, 'n'));
  EXPECT_EQ(key.speed, 19);
  EXPECT_EQ(key.cursorSync, 2);
  EXPECT_EQ(key.axes, 2);
}

TEST_F(SceenKeyDlgTest, TheTwoSyncButtonsAreOneSwitch) {
  const auto checks = [](bool start, bool end) {
    EXPECT_EQ(ControlIsChecked(TopDialog(), IDC_KEY_SYNC_START), start);
    EXPECT_EQ(ControlIsChecked(TopDialog(), IDC_KEY_SYNC_END), end);
  };
  ThenPress(IDC_KEY_SYNC_START);
  Then([=] { checks(true, false); });
  ThenPress(IDC_KEY_SYNC_END);
  Then([=] { checks(false, true); });
  ThenPress(IDC_KEY_SYNC_END);
  Then([=] {
    checks(false, false);
    PressEscape(TopDialog());
  });
  Run();
}

TEST_F(SceenKeyDlgTest, TwentyKeysAreRefusedBeforeTheQuestion) {
  for (int slot = 0; slot < 20; ++slot) Use(slot, slot + 1, "k");
  ThenAsked(IDC_KEY_ADD, "設定できるキー/マウスは最大20個です", "割付の追加エラー");
  ThenPress(kOkButton);
  Run();
}

TEST_F(SceenKeyDlgTest, DeleteMovesTheLaterKeysDown) {
  Use(0, 1, "一");
  Use(1, 2, "二");
  Use(2, 3, "三").parameters[0] = 1;
  ThenChoose(IDC_KEY_ROWS, 1);
  ThenAsked(IDC_KEY_DELETE, "キー/マウス割付を削除します。", "割付の削除");
  Then([] { EXPECT_EQ(Rows(), (Lines{"[ Enter ] - 一", "[ Esc ] - 三"})); });
  ThenPress(kOkButton);
  Run();
  EXPECT_EQ(SnryScene.keys[1].parameters[0], 1);
  EXPECT_EQ(SnryScene.keys[2].key, 0);
  EXPECT_EQ(SnryScene.keys[2].parameters[0], 0);
}

TEST_F(SceenKeyDlgTest, AParameterTakesTheFirstFreePlace) {
  SnryKeyRec& key = Use(0, 1, "一");
  key.parameters[0] = 3;
  ThenChoose(IDC_KEY_ROWS, 0);
  Then([] { EXPECT_EQ(Places(), (Lines{"1.扉"})); });
  ThenChoose(IDC_KEY_PARA, 1);
  ThenType(IDC_KEY_VALUE, "123456");
  ThenAsked(IDC_KEY_PLACE_ADD, kPlaceText, kPlaceCaption);
  Then([] { EXPECT_EQ(Places(), (Lines{"1.扉", "2.鍵"})); });
  ThenPress(kOkButton);
  Run();
  EXPECT_EQ(key.parameters[1], 1);
  EXPECT_EQ(key.values[1], 12345);
}

TEST_F(SceenKeyDlgTest, ALeadingMinusGivesZero) {
  SnryKeyRec& key = Use(0, 1, "一");
  ThenChoose(IDC_KEY_ROWS, 0);
  ThenChoose(IDC_KEY_PARA, 1);
  ThenType(IDC_KEY_VALUE, "-5");
  ThenAsked(IDC_KEY_PLACE_ADD, kPlaceText, kPlaceCaption);
  ThenPress(kOkButton);
  key.values[0] = 9;
  Run();
  EXPECT_EQ(key.values[0], 0);
}

TEST_F(SceenKeyDlgTest, AnEmptyRecordIsAskedAboutAndTakesTheParameter) {
  ThenChoose(IDC_KEY_PARA, 1);
  Then([] {
    ExpectBox("キー/マウスが設定されていません", "パラメータの追加エラー", BoxAnswer::Cancel);
    Press(TopDialog(), IDC_KEY_PLACE_ADD);
    EXPECT_EQ(SnryScene.keys[0].parameters[0], 0);
    ExpectBox("キー/マウスが設定されていません", "パラメータの追加エラー");
    ExpectBox(kPlaceText, kPlaceCaption);
    Press(TopDialog(), IDC_KEY_PLACE_ADD);
    EXPECT_EQ(SnryScene.keys[0].parameters[0], 1);
    ChooseRow(TopDialog(), IDC_KEY_PLACES, 0);
    ChooseRow(TopDialog(), IDC_KEY_PARA, 2);
    ExpectBox("キーコードが設定されていません", "パラメータの変更エラー");
    ExpectBox("パラメータを変更します。", "パラメータの変更");
    Press(TopDialog(), IDC_KEY_PLACE_CHANGE);
    EXPECT_EQ(SnryScene.keys[0].parameters[0], 3);
    Press(TopDialog(), kOkButton);
  });
  Run();
}

TEST_F(SceenKeyDlgTest, NothingIsAddedWithoutAChosenKey) {
  Use(0, 99, "先");  // the list has no such key
  ThenChoose(IDC_KEY_ROWS, 0);
  Then([] { EXPECT_EQ(ListSelected(TopDialog(), IDC_KEY_KEY), -1); });
  ThenAsked(IDC_KEY_ADD, kAddText, kAddCaption);
  Then([] { EXPECT_EQ(Rows(), (Lines{"[  ] - 先"})); });
  ThenAsked(IDC_KEY_CHANGE, "キー/マウス割付を変更します。", "割付の変更");
  ThenPress(kOkButton);
  Run();
  EXPECT_EQ(SnryScene.keys[0].key, 99);
  EXPECT_STREQ(SnryScene.keys[1].name, "");
}

TEST_F(SceenKeyDlgTest, AChangedKeyStaysChosenWithItsParameters) {
  Use(0, 1, "一").parameters[0] = 1;
  Use(1, 2, "二").parameters[0] = 3;
  ThenChoose(IDC_KEY_ROWS, 1);
  ThenType(IDC_KEY_NAME, "三");
  ThenAsked(IDC_KEY_CHANGE, "キー/マウス割付を変更します。", "割付の変更");
  Then([] {
    EXPECT_EQ(ListSelected(TopDialog(), IDC_KEY_ROWS), 1);
    EXPECT_EQ(Places(), (Lines{"1.扉"}));
  });
  ThenPress(kOkButton);
  Run();
  EXPECT_STREQ(SnryScene.keys[1].name, "三");
}

TEST_F(SceenKeyDlgTest, WithTwentyKeysAndNoneChosenThereAreNoParametersToEdit) {
  for (int slot = 0; slot < 20; ++slot) Use(slot, slot + 1, "k").parameters[0] = 1;
  Then([] { EXPECT_EQ(Places(), Lines()); });
  for (const int button : {IDC_KEY_PLACE_ADD, IDC_KEY_PLACE_CHANGE, IDC_KEY_PLACE_DELETE}) ThenPress(button);
  ThenPress(kOkButton);
  Run();
}

TEST_F(SceenKeyDlgTest, TwentyParametersAreTheMost) {
  SnryKeyRec& key = Use(0, 1, "一");
  for (auto& parameter : key.parameters) parameter = 1;
  ThenChoose(IDC_KEY_ROWS, 0);
  ThenAsked(IDC_KEY_PLACE_ADD, "設定できるパラメータは最大20個です", "パラメータ追加エラー");
  ThenPress(kOkButton);
  Run();
}

TEST_F(SceenKeyDlgTest, DeletingAParameterMovesTheLaterDown) {
  SnryKeyRec& key = Use(0, 1, "一");
  key.parameters[0] = 1;
  key.parameters[1] = 3;
  key.values[1] = 8;
  ThenChoose(IDC_KEY_ROWS, 0);
  ThenPress(IDC_KEY_PLACE_DELETE);  // none is chosen
  ThenChoose(IDC_KEY_PLACES, 0);
  ThenAsked(IDC_KEY_PLACE_DELETE, "パラメータを削除します。", "パラメータの削除");
  Then([] { EXPECT_EQ(Places(), (Lines{"1.扉"})); });
  ThenPress(kOkButton);
  Run();
  EXPECT_EQ(key.parameters[0], 3);
  EXPECT_EQ(key.values[0], 8);
  EXPECT_EQ(key.parameters[1], 0);
}

}  // namespace
