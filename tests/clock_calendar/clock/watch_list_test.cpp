// WatchListAddDlg, WatchListChgDlg and WatchListDelDlg: the timed events.
#include "tests/clock_calendar/clock/clock_fixture.h"

namespace {

class WatchListTest : public ClockFixture {
 protected:
  static void Fill(const char* hour, const char* minute, const char* second, const char* comment) {
    Type(TopDialog(), IDC_TIMED_HOUR, hour);
    Type(TopDialog(), IDC_TIMED_MINUTE, minute);
    Type(TopDialog(), IDC_TIMED_SECOND, second);
    Type(TopDialog(), IDC_TIMED_COMMENT, comment);
  }
  static Rows List() { return ListRows(TopDialog(), IDC_TIMED_LIST); }
  static void Put(int hour, int minute, int second, const char* comment, bool enabled = true) {
    TimedEvent event{enabled, hour, minute, second, {}};
    TextCopy(event.comment, sizeof event.comment, comment);
    TimedAdd(event);
  }
};

TEST_F(WatchListTest, AnEventIsAddedWithItsTimeInTwoCharactersEach) {
  SetTime(9, 5, 7);
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_WatchListAddDlg);
    EXPECT_EQ(WindowText(TopDialog()), "時計イベント追加");
    EXPECT_EQ(Dialogs.DlgIdSub, SubDialog::WatchListAddDlg);
    EXPECT_EQ(ControlText(TopDialog(), IDC_TIMED_HOUR), " 9");
    EXPECT_EQ(ControlText(TopDialog(), IDC_TIMED_MINUTE), " 5");
    EXPECT_EQ(ControlText(TopDialog(), IDC_TIMED_SECOND), " 7");
    EXPECT_TRUE(ControlIsChecked(TopDialog(), IDC_TIMED_ENABLE));
    Fill("99", "59", "60", "お茶");
    Press(TopDialog(), 1);
  });
  CommandSend(Command::WatchListAdd);
  ASSERT_EQ(Timed.TimedCount, 1);
  const TimedEvent event = TimedGet(0);
  EXPECT_TRUE(event.enabled);
  EXPECT_EQ(event.hour, 23) << "held inside the day";
  EXPECT_EQ(event.minute, 59);
  EXPECT_EQ(event.second, 59);
  EXPECT_STREQ(event.comment, "お茶");
}

TEST_F(WatchListTest, ACommentTakes127BytesAndEndsInsideItsField) {
  Then([] {
    Fill("1", "2", "3", std::string(127, 'x').c_str());
    PressEnter(TopDialog());
  });
  CommandSend(Command::WatchListAdd);
  EXPECT_EQ(std::strlen(TimedGet(0).comment), 127U);
}

TEST_F(WatchListTest, A25thRowIsRefusedAndWhatWasTypedStays) {
  for (int i = 0; i < 23; ++i) Put(1, i, 0, "");
  Then([] { Press(TopDialog(), 1); });
  CommandSend(Command::WatchListAdd);
  EXPECT_EQ(Timed.TimedCount, 24);
  Then([] { Fill("3", "4", "5", "もう一つ"); });
  ExpectBox("時計イベントの登録最大数は２４個です", "時計イベント追加");
  ThenPress(1);
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_WatchListAddDlg);
    EXPECT_EQ(ControlText(TopDialog(), IDC_TIMED_COMMENT), "もう一つ");
    PressEscape(TopDialog());
  });
  CommandSend(Command::WatchListAdd);
  EXPECT_EQ(Timed.TimedCount, 24);
}

TEST_F(WatchListTest, CancelAddsNothing) {
  for (int way = 0; way < 3; ++way) {
    Then([way] {
      if (way == 0) Press(TopDialog(), 2);
      if (way == 1) PressEscape(TopDialog());
      if (way == 2) PressClose(TopDialog());
    });
    CommandSend(Command::WatchListAdd);
  }
  EXPECT_EQ(Timed.TimedCount, 0);
}

TEST_F(WatchListTest, TheEventsAreListedInTheOrderOfTheirTimesAndTheChosenOneIsChanged) {
  Put(20, 0, 0, "夜");
  Put(6, 5, 30, "朝", false);
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_WatchListChgDlg);
    EXPECT_EQ(WindowText(TopDialog()), "時計イベント変更");
    EXPECT_EQ(List(), (Rows{"   6 :  5 . 30  朝", "○20 :  0 .  0  夜"}));
    EXPECT_EQ(ControlText(TopDialog(), IDC_TIMED_COMMENT), "朝");
    EXPECT_FALSE(ControlIsChecked(TopDialog(), IDC_TIMED_ENABLE));
    ChooseRow(TopDialog(), IDC_TIMED_LIST, 1);
    EXPECT_EQ(ControlText(TopDialog(), IDC_TIMED_HOUR), "20");
    Fill("5", "0", "0", "早朝");
    Press(TopDialog(), 1);
    EXPECT_EQ(List(), (Rows{"○ 5 :  0 .  0  早朝", "   6 :  5 . 30  朝"}));
    EXPECT_EQ(ListSelected(TopDialog(), IDC_TIMED_LIST), -1);
  });
  ExpectBox("リストから選択してください", "時計イベント変更");
  ThenPress(1);
  ThenPress(2);
  CommandSend(Command::WatchListChange);
  EXPECT_STREQ(TimedGet(0).comment, "早朝") << "the row keeps its number";
}

TEST_F(WatchListTest, AnEventIsDeletedAndThoseBehindItMoveUp) {
  Put(20, 0, 0, "夜");
  Put(6, 0, 0, "朝");
  Put(12, 0, 0, "昼");
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_WatchListDelDlg);
    EXPECT_EQ(WindowText(TopDialog()), "時計イベント削除");
    ChooseRow(TopDialog(), IDC_TIMED_LIST, 2);
    Press(TopDialog(), 1);
    EXPECT_EQ(List(), (Rows{"○ 6 :  0 .  0  朝", "○12 :  0 .  0  昼"}));
  });
  ExpectBox("リストから選択してください", "時計イベント削除");
  ThenPress(1);
  ThenEscape();
  CommandSend(Command::WatchListDelete);
  EXPECT_EQ(Timed.TimedCount, 2);
  EXPECT_STREQ(TimedGet(0).comment, "朝");
}

TEST_F(WatchListTest, AnEmptyListHasNothingToChangeOrDelete) {
  for (const Command command : {Command::WatchListChange, Command::WatchListDelete}) {
    const char* caption = command == Command::WatchListChange ? "時計イベント変更" : "時計イベント削除";
    ExpectBox("リストから選択してください", caption);
    ThenPress(1);
    ThenEscape();
    CommandSend(command);
  }
}

}  // namespace
