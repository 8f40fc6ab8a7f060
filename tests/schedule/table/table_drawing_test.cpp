// What the window of the schedule shows, in pixels.
#include "platform/posix/faults.h"
#include "schedule/table/table_draw.h"
#include "tests/schedule/table/table_fixture.h"

namespace {

TEST_F(ScheduleTableTest, TheWindowHasItsPlacesInPixels) {
  const Rect client = WindowClientRect(Window());
  EXPECT_EQ(client.right, 808);
  EXPECT_EQ(client.bottom, 540);
  EXPECT_EQ(WindowText(Window()), "スケジュール表");
  EXPECT_TRUE(IsVisible(Window()));
  EXPECT_EQ(View().pageLines, 20);
  EXPECT_EQ(View().lines, 31);
  const Rect bar = ControlPlace(Window(), kTableBar);
  EXPECT_EQ(bar.left, 782);
  EXPECT_EQ(bar.top, 50);
  EXPECT_EQ(bar.right, 798);
  EXPECT_EQ(bar.bottom, 450);
}

TEST_F(ScheduleTableTest, TheHeadsStandInTheirColumns) {
  Repaint();
  EXPECT_TRUE(Stands("項目", 12, 32));
  EXPECT_TRUE(Stands("   内  容 ", 52, 32));
  EXPECT_TRUE(Stands("予定時間", 580, 32));
  EXPECT_TRUE(Stands("ﾁｪｯｸ", 670, 32));
  EXPECT_TRUE(Stands("ｱﾗｰﾑ", 728, 32));
}

TEST_F(ScheduleTableTest, TitleAndStartStandAboveThem) {
  TextCopy(SclTitle(), kSclTitleSize, "年末の仕事");
  SclStart() = {7, 0, 4, 9};
  Repaint();
  EXPECT_TRUE(Stands("年末の仕事", 12, 12));
  EXPECT_TRUE(Stands("開始: 2007年 1月 5日 9時", 570, 12));
  SclStart() = {26, 10, 20, 18};
  Repaint();
  EXPECT_TRUE(Stands("開始: 2026年11月21日18時", 570, 12));
}

TEST_F(ScheduleTableTest, ARowShowsNumberContentHoursCheckAndAlarm) {
  SclItem(0).hours = 12;
  SclItem(0).doneState = 1;
  SclItem(0).alarmOn = 1;
  TextCopy(SclItem(0).text, kSclItemTextSize, "会議");
  SclItem(1).doneState = 7;
  Repaint();
  EXPECT_TRUE(Stands("  1", 12, 52));
  EXPECT_TRUE(Stands("会議", 52, 52));
  EXPECT_TRUE(Stands(" 12H", 580, 52));
  EXPECT_TRUE(Stands(" 済み", 670, 52));
  EXPECT_TRUE(Stands("  ◎", 728, 52));
  EXPECT_TRUE(Stands("  2", 12, 72));
  EXPECT_TRUE(Stands("----", 580, 72));
  EXPECT_TRUE(Stands("     ", 670, 72));
  EXPECT_FALSE(Stands("  ◎", 728, 72));
  EXPECT_TRUE(Stands(" 20", 12, 432));
  EXPECT_FALSE(Stands(" 21", 12, 452));
}

TEST_F(ScheduleTableTest, HoursAreShownInDaysWhenTheItemSaysSo) {
  SclItem(0).hours = 25;
  SclItem(0).showDays = 1;
  SclItem(1).hours = 20;
  SclItem(1).showDays = 1;
  Repaint();
  EXPECT_TRUE(Stands("  2.200D", 580, 52));
  EXPECT_TRUE(Stands("  2D", 580, 72));
}

TEST_F(ScheduleTableTest, ContentIsCutToItsColumnAndSplitsNoPair) {
  // 520 pixels hold 65 bytes.
  std::string pairs;
  for (int i = 0; i < 40; ++i) pairs += "あ";
  TextCopy(SclItem(0).text, kSclItemTextSize, pairs.c_str());
  TextCopy(SclItem(1).text, kSclItemTextSize, std::string(100, 'x').c_str());
  Repaint();
  EXPECT_TRUE(Stands(pairs.substr(0, 64).c_str(), 52, 52));
  EXPECT_TRUE(Stands(std::string(65, 'x').c_str(), 52, 72));
}

TEST_F(ScheduleTableTest, ContentIsAtMost128Bytes) {
  WindowMove(Window(), 0, 0, 1600, 600, false);
  std::fill_n(SclItem(0).text, kSclItemTextSize, 'y');  // a file may lack the terminator
  Repaint();
  EXPECT_TRUE(Stands(std::string(128, 'y').c_str(), 52, 52));
}

TEST_F(ScheduleTableTest, ATitleLongerThanItsCellIsCut) {
  // The cell from 10 to 568 holds (558 - 8) / 8 bytes.
  TextCopy(SclTitle(), kSclTitleSize, std::string(128, 't').c_str());
  Repaint();
  EXPECT_TRUE(Stands(std::string(68, 't').c_str(), 12, 12));
}

TEST_F(ScheduleTableTest, KindZeroHasWiderHoursAndNoChecks) {
  SclKindSet(0);
  SclItem(0).hours = 3;
  SclItem(0).doneState = 1;
  SclItem(0).alarmOn = 1;
  Repaint();
  EXPECT_TRUE(Stands("予定時間", 548, 32));
  EXPECT_TRUE(Stands("  3H", 548, 52));
  EXPECT_TRUE(Stands("ｱﾗｰﾑ", 728, 32));
  EXPECT_TRUE(Stands("  ◎", 728, 52));
  for (const DrawCall& text : DrawnTexts(Window())) {
    EXPECT_NE(text.text, "ﾁｪｯｸ");
    EXPECT_NE(text.text, " 済み");
  }
}

TEST_F(ScheduleTableTest, TheSelectedRangeHasItsNumberCellsMarked) {
  Drag(2, 4);
  Repaint();
  EXPECT_EQ(Filled(kSelected), (Rows{"10,70-51,91", "10,90-51,111", "10,110-51,131"}));
}

TEST_F(ScheduleTableTest, AClickedCellIsHighlighted) {
  const struct {
    int x;
    const char* cell;
  } kCells[] = {{kContentX, "50,90-579,111"},
                {kHoursX, "578,90-669,111"},
                {kCheckX, "668,90-727,111"},
                {kAlarmX, "726,90-783,111"}};
  for (const auto& cell : kCells) {
    Click(cell.x, 3);
    Repaint();
    EXPECT_EQ(Filled(kSelected), (Rows{"10,90-51,111", cell.cell}));
  }
  Mouse(Window(), EventKind::LeftDown, 600, 20);  // the start
  Repaint();
  EXPECT_EQ(Filled(kSelected), Rows());
  EXPECT_EQ(RowSelection.currentRow, 0);
}

TEST_F(ScheduleTableTest, TheExecutionMarkStandsBelowTheTableWhileItIsSet) {
  Repaint();
  EXPECT_FALSE(Stands("< 実行指定中 >", 12, 456));
  ExpectBox("表示中スケジュールを実行指定します。(設定アラームが有効になります)", "実行スケジュールの指定");
  Press(Window(), IDC_SCL_EXECUTE);
  Repaint();
  EXPECT_TRUE(Stands("< 実行指定中 >", 12, 456));
  for (const DrawCall& text : DrawnTexts(Window())) {
    EXPECT_TRUE(text.text != "< 実行指定中 >" || text.textColour == 0xFFFFFF);
  }
  const Rows red = Filled(0x0000E6);
  EXPECT_NE(std::find(red.begin(), red.end(), "10,454-131,475"), red.end());
}

TEST_F(ScheduleTableTest, TheDetailsOfTheCurrentRowStandBelowTheTable) {
  Lines(5);
  SclItem(1).start = {26, 10, 22, 8};
  SclItem(1).end = {26, 11, 0, 18};
  Click(kNumberX, 2);
  Repaint();
  EXPECT_TRUE(Stands("[項目2]", 14, 480));
  EXPECT_TRUE(Stands("開始時間: 2026年 11月 23日 8時", 14, 497));
  EXPECT_TRUE(Stands("終了時間: 2026年 12月  1日 18時", 14, 514));
}

TEST_F(ScheduleTableTest, AStartAtTheEndOfItsDayIsShownOnTheNext) {
  Lines(5);
  SclItem(2).start = {26, 10, 29, 18};  // the last of November
  Click(kContentX, 3);
  Repaint();
  EXPECT_TRUE(Stands("開始時間: 2026年 12月  1日 8時", 14, 497));
  EXPECT_EQ(SclItem(2).start.hour, 18) << "only what is shown moves";
}

TEST_F(ScheduleTableTest, ACopiedRangeStandsInABracket) {
  Drag(2, 4);
  Send(kCopy);
  Repaint();
  EXPECT_EQ(Drawn(kRed), (Rows{
                             "10,70-10,91", "50,70-50,91", "10,70-51,70",       // open at the bottom
                             "10,90-10,111", "50,90-50,111",                    // sides
                             "10,110-10,131", "50,110-50,131", "10,130-51,130"  // open at the top
                         }));
  Click(kNumberX, 2);
  Send(kCopy);
  Repaint();
  EXPECT_EQ(Drawn(kRed), (Rows{"10,70-10,91", "50,70-50,91", "10,70-51,70", "10,90-51,90"}));
}

TEST_F(ScheduleTableTest, AScrolledTableShowsItsRowsFromTheTop) {
  Lines(100);
  Click(kNumberX, 3);
  ScrollBy(Window(), View().scrollBar, Scroll::PageDown);
  Repaint();
  EXPECT_TRUE(Stands(" 11", 12, 52));
  EXPECT_TRUE(Stands("11", 52, 52));
  EXPECT_EQ(Filled(kSelected), Rows()) << "row 3 is not on show";
  EXPECT_TRUE(Stands("[項目3]", 14, 480)) << "and still the current one";
}

TEST_F(ScheduleTableTest, AFontIsSelectedOnEachPaintAndTextIsTransparent) {
  Repaint();
  const std::vector<DrawCall> texts = DrawnTexts(Window());
  ASSERT_FALSE(texts.empty());
  for (const DrawCall& text : texts) {
    EXPECT_EQ(text.fontWidth, 8);
    EXPECT_EQ(text.fontHeight, 16);
    EXPECT_TRUE(text.transparent);
  }
}

TEST_F(ScheduleTableTest, WithoutABitmapItIsDrawnStraightOnTheScreen) {
  FaultArm(FaultKind::Bitmap, 1);
  Repaint();
  FaultClear();
  EXPECT_TRUE(Stands("   内  容 ", 52, 32));
  EXPECT_TRUE(Stands("  1", 12, 52));
}

TEST_F(ScheduleTableTest, AHigherWindowShowsMoreRowsAndTakesItsButtonsAlong) {
  const Rect before = ControlPlace(Window(), IDC_SCL_SAVE);
  const Rect outer = WindowRect(Window());
  WindowMove(Window(), outer.left, outer.top, RectWidth(outer), RectHeight(outer) + 100, false);
  EXPECT_EQ(View().pageLines, 25);
  const Rect after = ControlPlace(Window(), IDC_SCL_SAVE);
  EXPECT_EQ(after.top, before.top + 100);
  EXPECT_EQ(after.left, before.left);
  EXPECT_EQ(ControlPlace(Window(), kTableBar).bottom, 550);
  WindowMove(Window(), outer.left, outer.top, RectWidth(outer), RectHeight(outer), false);
  EXPECT_EQ(ControlPlace(Window(), IDC_SCL_SAVE).top, before.top);
}

TEST_F(ScheduleTableTest, AWindowTooSmallForARowShowsNone) {
  const Rect outer = WindowRect(Window());
  WindowMove(Window(), 0, 0, 100, 100, false);
  EXPECT_EQ(View().pageLines, 0);
  Repaint();
  Mouse(Window(), EventKind::LeftDown, 30, 60);
  EXPECT_EQ(RowSelection.currentRow, 0);
  WindowMove(Window(), outer.left, outer.top, RectWidth(outer), RectHeight(outer), false);
  EXPECT_EQ(View().pageLines, 20);
}

TEST_F(ScheduleTableTest, AScrollBarThatTheStageTookAwayComesBackWithTheNextPaint) {
  Lines(100);
  WindowMove(Program.hMainWnd, 0, 0, 333, 222, false);
  EXPECT_EQ(View().scrollBar, nullptr);
  SendPaint(Program.hMainWnd);
  ASSERT_NE(View().scrollBar, nullptr);
  EXPECT_EQ(ScrollBarState(View().scrollBar).lines, 100);
}

}  // namespace
