// The line chart: its bars, its picture, and what its window answers.
//
// All days work from 8 to 18. Lines of 4, 8 and 30 hours from Monday 23 November at 8 on
// take Monday to 12, Tuesday to 10, and Friday to 10: the hours 0 to 4, 4 to 12 and 12 to
// 42 of the chart. Its window is 960 by 600 pixels; the bars have x 210 to 934, 36 hours,
// and y 90 to 544, 22 bars.
#include "schedule/table/line_chart.h"

#include "schedule/table/schedule_dialogs.h"
#include "tests/schedule/table/table_fixture.h"

namespace {

class LineBarsTest : public SclModelTest {
 protected:
  static std::string Bars() {
    LineChartBuild();
    std::string bars;
    for (int i = 0; i < LineChart.count; ++i) {
      const LineBar& bar = LineChart.bars[i];
      bars += (i > 0 ? " " : "") + std::to_string(bar.item) + ":" + std::to_string(bar.start) + "-" +
              std::to_string(bar.end);
    }
    return bars;
  }
  static int WidthOf(const std::vector<int>& lengths) {
    SclWorkDayRow rows[kSclRowCount] = {};
    for (std::size_t i = 0; i < lengths.size(); ++i) rows[i].length = lengths[i];
    return LineHourWidth(rows);
  }
};

TEST_F(LineBarsTest, EachLineBehindTheStartHasABar) {
  Items({4, 8, 30});
  EXPECT_EQ(Bars(), "0:0-4 1:4-12 2:12-42");
  EXPECT_EQ(LineChart.hours, 42);
  EXPECT_EQ(LineChart.hourWidth, 20);
}

TEST_F(LineBarsTest, ALineThatNeitherBeginsNorEndsBehindTheStartHasNone) {
  Items({0, 4});
  EXPECT_EQ(Bars(), "1:0-4");
  Items({0, 0, 0});
  EXPECT_EQ(Bars(), "");
  EXPECT_EQ(LineChart.hours, 0);
}

TEST_F(LineBarsTest, AStartAtOrBeforeTheStartOfTheScheduleIsAtZero) {
  Items({4});
  SclItem(0).start = {26, 10, 1, 9};
  EXPECT_EQ(Bars(), "0:0-4");
}

TEST_F(LineBarsTest, AnEndThatLiesBeforeItsStartIsHeldAtZero) {
  Items({4, 4});
  SclItem(1).end = {25, 0, 0, 0};
  EXPECT_EQ(Bars(), "0:0-4 1:4-0");
}

TEST_F(LineBarsTest, AnHourIsWiderWhenTwoDaysOfOneHourFollowEachOther) {
  EXPECT_EQ(WidthOf({8, 8, 8, 8, 8, 8, 8}), 20);
  EXPECT_EQ(WidthOf({1, 8, 1, 8, 1, 8, 8}), 20);
  EXPECT_EQ(WidthOf({8, 1, 1, 8, 8, 8, 8}), 40);
  EXPECT_EQ(WidthOf({8, 1, 0, 0, 1, 8, 8}), 40);  // days without work are passed over
  EXPECT_EQ(WidthOf({1, 8, 8, 8, 8, 8, 1}), 40);  // Sunday to Monday
  EXPECT_EQ(WidthOf({0, 1, 8, 8, 8, 1, 0}), 40);
  EXPECT_EQ(WidthOf({8, 1, 8, 8, 8, 8, 8, 1}), 20);  // the holiday's row does not count
  EXPECT_EQ(WidthOf({0, 0, 0, 0, 0, 0, 0}), 20);
}

TEST_F(LineBarsTest, TheViewStaysInsideTheChart) {
  Items({4, 8, 30});
  LineChartBuild();
  LineChartHourSet(100, 36);
  EXPECT_EQ(LineChart.firstHour, 6);
  LineChartHourSet(-3, 36);
  EXPECT_EQ(LineChart.firstHour, 0);
  LineChartBarSet(2, 22);
  EXPECT_EQ(LineChart.firstBar, 0);
  LineChartBarSet(2, 1);
  EXPECT_EQ(LineChart.firstBar, 2);
}

TEST_F(LineBarsTest, AThousandLinesHaveTheirBars) {
  Items(std::vector<std::uint32_t>(1000, 1));
  LineChartBuild();
  EXPECT_EQ(LineChart.count, 1000);
  EXPECT_EQ(LineChart.hours, 1000);
}

// --- The window

class LineChartTest : public ScheduleTableTest {
 protected:
  void SetUp() override {
    ScheduleTableTest::SetUp();
    SclStart() = {26, 10, 22, 8};
    Lines({4, 8, 30});
  }
  static void Lines(const std::vector<std::uint32_t>& hours) {
    SclCountSet(static_cast<int>(hours.size()));
    for (std::size_t i = 0; i < hours.size(); ++i) {
      SclItem(static_cast<int>(i)) = {};
      SclItem(static_cast<int>(i)).hours = hours[i];
      TextFormat(SclItem(static_cast<int>(i)).text, kSclItemTextSize, "仕事%d", static_cast<int>(i) + 1);
    }
    SclRecalcAll();
  }
  static WindowHandle Chart() { return FindDialog(IDD_ScheduleLineDlg); }
  static void Open() { Press(Window(), IDC_SCL_LINES); }
  static void ThenDraw() {
    Then([] {
      DrawingClear();
      SendPaint(Chart());
    });
  }
  static void ThenClose() {
    Then([] { Press(Chart(), 2); });
  }
  static bool Shows(const char* text, int x, int y) { return TextStands(Chart(), text, x, y); }
  static Rows Bars() {
    Rows bars;
    for (const DrawCall& call : Drawings(Chart())) {
      if (call.kind != DrawCall::Kind::Line || call.penWidth != 3) continue;
      bars.push_back(std::to_string(call.x) + "-" + std::to_string(call.x2) + " " + std::to_string(call.y) +
                     (call.pen == 0 ? " open" : " done"));
    }
    return bars;
  }
};

TEST_F(LineChartTest, TheChartShowsBarsTextsAndNumbers) {
  SclItem(1).doneState = 1;
  ThenDraw();
  Then([] {
    EXPECT_EQ(WindowText(Chart()), "計画-線表");
    EXPECT_EQ(Dialogs.DlgIdTool, ToolDialog::ScheduleLineDlg);
    EXPECT_EQ(WindowClientRect(Chart()).right, 960);
    EXPECT_EQ(WindowClientRect(Chart()).bottom, 600);
    EXPECT_EQ(Bars(), (Rows{"210-290 110 open", "290-450 130 done", "450-950 150 open"}));
    EXPECT_TRUE(Shows("仕事1", 210, 92));
    EXPECT_TRUE(Shows("仕事2", 290, 112));
    EXPECT_TRUE(Shows("仕事3", 450, 132));
    EXPECT_TRUE(Shows("(1) 仕事1", 12, 92));
    EXPECT_TRUE(Shows("(3) 仕事3", 12, 132));
  });
  ThenClose();
  Open();
}

TEST_F(LineChartTest, TheHeadTellsWhenEachBarBegins) {
  ThenDraw();
  Then([] {
    EXPECT_TRUE(Shows("年", 12, 12));
    EXPECT_TRUE(Shows("月", 12, 32));
    EXPECT_TRUE(Shows("日", 12, 52));
    EXPECT_TRUE(Shows("時", 12, 72));
    EXPECT_TRUE(Shows("2026", 212, 12));
    EXPECT_TRUE(Shows("11", 212, 32));
    EXPECT_TRUE(Shows("23(月)", 212, 52));
    EXPECT_TRUE(Shows("8", 212, 72));
    EXPECT_TRUE(Shows("23(月)", 292, 52));
    EXPECT_TRUE(Shows("12", 292, 72));
    EXPECT_TRUE(Shows("24(火)", 452, 52));
    EXPECT_TRUE(Shows("10", 452, 72));
    for (const DrawCall& text : DrawnTexts(Chart())) EXPECT_EQ(text.textColour, 0U);
  });
  ThenClose();
  Open();
}

TEST_F(LineChartTest, TodayIsRed) {
  SclStart() = {26, 10, 20, 8};  // Saturday, today
  Lines({12, 4});
  ThenDraw();
  Then([] {
    EXPECT_TRUE(Shows("21(土)", 212, 52));
    EXPECT_TRUE(Shows("22(日)", 452, 52));
    for (const DrawCall& text : DrawnTexts(Chart())) {
      EXPECT_EQ(text.textColour, text.text == "21(土)" ? 0x0000FFU : 0U) << text.text;
    }
  });
  ThenClose();
  Open();
}

TEST_F(LineChartTest, AYearOfOneDigitIsShownWithA0) {
  SclStart() = {7, 10, 22, 8};
  Lines({4});
  ThenDraw();
  Then([] { EXPECT_TRUE(Shows("2007", 212, 12)); });
  ThenClose();
  Open();
}

TEST_F(LineChartTest, DatesThatHaveNoRoomAreLeftOut) {
  Lines({1, 1, 1, 1, 1});
  ThenDraw();
  Then([] {
    // Hours of one digit fit into 20 pixels, two digits with their gap take 24.
    EXPECT_TRUE(Shows("8", 212, 72));
    EXPECT_TRUE(Shows("9", 232, 72));
    EXPECT_TRUE(Shows("10", 252, 72));
    EXPECT_FALSE(Shows("11", 272, 72));
    EXPECT_TRUE(Shows("12", 292, 72));
    EXPECT_TRUE(Shows("23(月)", 212, 52));
    EXPECT_FALSE(Shows("23(月)", 252, 52));
    EXPECT_TRUE(Shows("23(月)", 272, 52));
  });
  ThenClose();
  Open();
}

TEST_F(LineChartTest, ScrollBarsMoveTheViewByOneAndByTen) {
  Lines(std::vector<std::uint32_t>(40, 10));
  const auto across = [](Scroll scroll, int position = 0) {
    Then([=] { ScrollBy(Chart(), Control(Chart(), IDC_CHART_ACROSS), scroll, position); });
  };
  const auto down = [](Scroll scroll, int position = 0) {
    Then([=] { ScrollBy(Chart(), Control(Chart(), IDC_CHART_DOWN), scroll, position); });
  };
  const auto stands = [](int hour, int bar) {
    Then([=] {
      EXPECT_EQ(LineChart.firstHour, hour);
      EXPECT_EQ(LineChart.firstBar, bar);
    });
  };
  across(Scroll::LineDown);
  down(Scroll::LineDown);
  stands(1, 1);
  across(Scroll::PageDown);
  down(Scroll::PageDown);
  stands(11, 11);
  across(Scroll::PageUp);
  down(Scroll::LineUp);
  stands(1, 10);
  across(Scroll::Thumb, 300);
  down(Scroll::Thumb, 7);
  stands(300, 7);
  down(Scroll::Bottom);
  stands(300, 18);
  across(Scroll::Bottom);
  stands(364, 18);
  Then([] { Wheel(Chart(), 400, 300, 2); });
  stands(364, 12);
  ThenPress(IDC_CHART_FIRST);
  stands(0, 0);
  ThenPress(IDC_CHART_LAST);
  stands(364, 18);
  ThenDraw();
  Then([] {
    EXPECT_TRUE(Shows("(19) 仕事19", 12, 92));
    EXPECT_EQ(ScrollBarState(Control(Chart(), IDC_CHART_ACROSS)).position, 364);
    EXPECT_EQ(ScrollBarState(Control(Chart(), IDC_CHART_DOWN)).position, 18);
  });
  across(Scroll::Top);
  down(Scroll::PageUp);
  stands(0, 8);
  ThenClose();
  Open();
}

TEST_F(LineChartTest, BarsAreOffWhenEverythingFits) {
  Lines({4});
  Then([] {
    EXPECT_FALSE(ScrollBarState(Control(Chart(), IDC_CHART_ACROSS)).enabled);
    EXPECT_FALSE(ScrollBarState(Control(Chart(), IDC_CHART_DOWN)).enabled);
  });
  ThenClose();
  Open();
}

TEST_F(LineChartTest, AnEmptyScheduleHasAnEmptyChart) {
  Lines({});
  ThenDraw();
  Then([] {
    EXPECT_EQ(Bars(), Rows());
    Mouse(Chart(), EventKind::LeftDouble, 300, 200);
    Press(Chart(), IDC_CHART_LAST);
  });
  ThenClose();
  Open();
  Then([] { PressEscape(TopDialog()); });
  Open();
  Then([] { PressClose(TopDialog()); });
  Open();
  Then([] { PressEnter(TopDialog()); });
  Open();
}

TEST_F(LineChartTest, ADoubleClickOnABarItsTextOrItsNumberShowsTheLine) {
  for (const Point at :
       {Point{400, 128}, Point{400, 130}, Point{400, 131}, Point{300, 112}, Point{50, 118}}) {
    Then([at] { Mouse(Chart(), EventKind::LeftDouble, at.x, at.y); });
    Then([] {
      ASSERT_EQ(TemplateOf(TopDialog()), IDD_DspSclClickLineData);
      EXPECT_EQ(ControlText(TopDialog(), IDC_SCL_LINE_NUMBER), " 2 ");
      EXPECT_EQ(ControlText(TopDialog(), IDC_SCL_LINE_TIME),
                "2026年 11月 23日 12時 ～ 2026年 11月 24日 10時 の8時間");
      Press(TopDialog(), 2);
    });
    ThenClose();
    Open();
  }
}

TEST_F(LineChartTest, ADoubleClickElsewhereShowsNothing) {
  Then([] {
    for (const Point at : {Point{800, 128}, Point{250, 118}, Point{400, 300}, Point{50, 300}, Point{700, 60},
                           Point{50, 60}, Point{940, 30}}) {
      Mouse(Chart(), EventKind::LeftDouble, at.x, at.y);
      EXPECT_EQ(TemplateOf(TopDialog()), IDD_ScheduleLineDlg) << at.x;
    }
  });
  ThenClose();
  Open();
}

TEST_F(LineChartTest, ADoubleClickOnADateShowsItsDay) {
  Then([] { Mouse(Chart(), EventKind::LeftDouble, 460, 60); });
  Then([] {
    ASSERT_EQ(TemplateOf(TopDialog()), IDD_DspSclClickDayData);
    EXPECT_EQ(WindowText(TopDialog()), "指定日のスケジュール");
    EXPECT_EQ(Dialogs.DlgIdSub, SubDialog::DspSclClickDayData);
    EXPECT_EQ(ControlText(TopDialog(), IDC_SCL_DAY_HEAD), "2026年 11月 24日 の予定");
    EXPECT_EQ(ListRows(TopDialog(), IDC_SCL_DAY_LINES),
              (Rows{"【 時間 】8 時～10 時", "項目  2: 仕事2", "【 時間 】10 時～18 時", "項目  3: 仕事3"}));
    Press(TopDialog(), 2);
  });
  ThenClose();
  Open();
}

// --- The lines of a day

class ScheduleDayTest : public LineChartTest {
 protected:
  static Rows LinesOf(int day) {
    static Rows found;
    Then([] {
      found = ListRows(TopDialog(), IDC_SCL_DAY_LINES);
      PressEscape(TopDialog());
    });
    ScheduleDayRun(Window(), {26, 10, day, 0});
    return found;
  }
};

TEST_F(ScheduleDayTest, ALineOfSeveralDaysHasTheHoursOfTheDay) {
  EXPECT_EQ(LinesOf(24), (Rows{"【 時間 】8 時～18 時", "項目  3: 仕事3"}));
  EXPECT_EQ(LinesOf(26), (Rows{"【 時間 】8 時～10 時", "項目  3: 仕事3"}));
  EXPECT_EQ(LinesOf(27), Rows());
}

TEST_F(ScheduleDayTest, ALineThatMerelyStartsAtTheEndOfTheDayIsLeftOut) {
  SclItem(2).start = {26, 10, 23, 18};
  EXPECT_EQ(LinesOf(23), (Rows{"【 時間 】8 時～10 時", "項目  2: 仕事2"}));
}

TEST_F(ScheduleDayTest, ALineWithoutHoursIsLeftOut) {
  SclItem(0).hours = 0;
  EXPECT_EQ(LinesOf(22), (Rows{"【 時間 】12 時～18 時", "項目  2: 仕事2"}));
}

TEST_F(ScheduleDayTest, ALineOverTheEndOfAMonthHoldsNoneOfItsDays) {
  Lines({4});
  SclItem(0).start = {26, 10, 28, 8};
  SclItem(0).end = {26, 11, 2, 18};
  EXPECT_EQ(LinesOf(28), Rows());
  EXPECT_EQ(LinesOf(29), Rows());
}

TEST_F(ScheduleDayTest, ATextIsBrokenEvery66BytesAndSplitsNoPair) {
  Lines({4});
  // 65 letters, then pairs: the first line ends before the pair that would be cut.
  std::string text(65, 'a');
  for (int i = 0; i < 31; ++i) text += "か";
  TextCopy(SclItem(0).text, kSclItemTextSize, text.c_str());
  EXPECT_EQ(LinesOf(22),
            (Rows{"【 時間 】8 時～12 時", "項目  1: " + std::string(65, 'a'), text.substr(65)}));
  std::string pairs;
  for (int i = 0; i < 63; ++i) pairs += "き";
  TextCopy(SclItem(0).text, kSclItemTextSize, pairs.c_str());
  EXPECT_EQ(LinesOf(22),
            (Rows{"【 時間 】8 時～12 時", "項目  1: " + pairs.substr(0, 66), pairs.substr(66)}));
  SclItem(0).text[0] = '\0';
  EXPECT_EQ(LinesOf(22), (Rows{"【 時間 】8 時～12 時", "項目  1: "}));
}

}  // namespace
