#include "platform/posix/test_clock.h"
#include "resources/schedule_rates_ids.h"
#include "services/modal.h"
#include "services/today.h"
#include "tests/schedule/rates/rates_fixture.h"

namespace {

using SclRatesTest = RatesTest;

std::string RateText(float rate) {
  char text[64];
  SclRateText(rate, text, sizeof text);
  return text;
}

TEST_F(SclRatesTest, AScheduleWithNoHoursAnywhereHasNoRates) {
  const SclRates rates = SclRatesOf(26, 10, 20);
  EXPECT_FALSE(rates.any);
  EXPECT_FALSE(rates.reached);
  EXPECT_FALSE(rates.measured);
}

TEST_F(SclRatesTest, WithNoItemDueThereIsNoProgress) {
  Item(0, 8, 1, 10, 20);  // ends today
  Item(1, 2, 0, 11, 0);
  const SclRates rates = SclRatesOf(26, 10, 20);
  EXPECT_TRUE(rates.reached);
  EXPECT_EQ(rates.done, 80.0F);  // 8 of 10 hours
  EXPECT_EQ(rates.due, 0.0F);
  EXPECT_FALSE(rates.measured);
}

TEST_F(SclRatesTest, DueIsByYearThenMonthThenDay) {
  Item(0, 1, 0).end = {25, 11, 30, 8};  // a later month and day of the year before
  Item(1, 2, 0).end = {26, 9, 30, 8};   // the month before
  Item(2, 4, 0).end = {26, 10, 19, 8};  // yesterday
  Item(3, 8, 0).end = {26, 10, 20, 8};  // today
  Item(4, 16, 0).end = {27, 0, 0, 8};   // next year
  const SclRates rates = SclRatesOf(26, 10, 20);
  EXPECT_FLOAT_EQ(rates.due, 700.0F / 31.0F);
  EXPECT_EQ(rates.end, (SclItemDate{27, 0, 0, 8}));
}

TEST_F(SclRatesTest, ProgressIsDoneAgainstDue) {
  Item(0, 3, 1, 10, 0);
  Item(1, 3, 0, 10, 1);
  Item(2, 6, 5, 11, 0);  // a status that is not finished
  const SclRates rates = SclRatesOf(26, 10, 20);
  EXPECT_EQ(rates.done, 25.0F);
  EXPECT_EQ(rates.due, 50.0F);
  EXPECT_EQ(rates.progress, 50.0F);
}

TEST_F(SclRatesTest, LinesBehindTheCountAreNotCounted) {
  Item(0, 1, 1);
  Item(40, 9, 0);  // there are 31 lines
  EXPECT_EQ(SclRatesOf(26, 10, 20).done, 100.0F);
}

// 0.05 becomes 5000000, 50000, 500, 5; 0.5 becomes 50000000, 500000, 5000, 50.
TEST_F(SclRatesTest, TheRestLosesItsLeadingZeros) {
  EXPECT_EQ(RateText(100.0F), "100.0％");
  EXPECT_EQ(RateText(12.5F), "12.50％");
  EXPECT_EQ(RateText(0.0625F), "0.6％");  // 6250000, 62500, 625, 6
  EXPECT_EQ(RateText(33.25F), "33.25％");
}

// --- The dialog

constexpr int kFields[] = {IDC_RATE_START, IDC_RATE_END, IDC_RATE_TODAY,
                           IDC_RATE_DONE,  IDC_RATE_DUE, IDC_RATE_PROGRESS};

std::vector<std::string> FieldTexts() {
  std::vector<std::string> texts;
  for (const int id : kFields) texts.push_back(ControlText(TopDialog(), id));
  return texts;
}

TEST_F(SclRatesTest, TheDialogShowsDatesAndRates) {
  SclStart() = {5, 1, 2, 8};
  Item(0, 3, 1, 10, 0);
  Item(1, 1, 0, 11, 5);
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_SclSucsPerAndMapDlg);
    EXPECT_EQ(WindowText(TopDialog()), "予定表 - 目標達成率表示");
    EXPECT_EQ(FieldTexts(), (Lines{"2005年 2月 3日", "2026年 12月 6日", "2026年 11月 21日", "75.0％",
                                   "75.0％", "100.0％"}));
    PressEnter(TopDialog());
  });
  CommandSend(Command::ScheduleRates);
}

TEST_F(SclRatesTest, WithoutHoursAllRatesAreEmpty) {
  Then([] {
    EXPECT_EQ(FieldTexts(), (Lines{"2026年 11月 21日", "", "2026年 11月 21日", "", "", ""}));
    PressEscape(TopDialog());
  });
  CommandSend(Command::ScheduleRates);
}

TEST_F(SclRatesTest, TheKeyOfTheMapShowsAnEmptyMapWithoutFiles) {
  Then([] { Press(TopDialog(), IDC_RATE_MAP); });
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_DispCelSclMapPosDlg);
    Mouse(TopDialog(), EventKind::LeftDown, 10, 10);
    EXPECT_EQ(SclMap.column, 0);
    Press(TopDialog(), kCancelButton);
  });
  Then([] { PressClose(TopDialog()); });
  CommandSend(Command::ScheduleRates);
}

// The calendar finds out by itself that a day has begun, from the date that was known before.
TEST_F(SclRatesTest, TheFirstLookAfterMidnightLeavesTheNewDayToTheCalendar) {
  TestClockSet({2026, 11, 22, 0, 0, 0, 5, 0});
  Then([] {
    EXPECT_EQ(ControlText(TopDialog(), IDC_RATE_TODAY), "2026年 11月 22日");
    Press(TopDialog(), kOkButton);
  });
  CommandSend(Command::ScheduleRates);
  EXPECT_EQ(Today.TodayDay, 20);
}

// --- Commands from outside

constexpr Command kRatesCommands[] = {Command::ScheduleRates, Command::ScheduleMap, Command::ScheduleStatus};

// Nothing opens over the dialog that is up, neither of the rates nor of another feature.
void ExpectNothingOpens() {
  const WindowHandle top = TopDialog();
  EXPECT_TRUE(ModalIsUp());
  for (const Command command : kRatesCommands) CommandSend(command);
  for (const Command command : {Command::ScheduleLoad, Command::BackUpFiles, Command::ScheduleNew}) {
    CommandSend(command);
  }
  EXPECT_EQ(TopDialog(), top);
}

TEST_F(SclRatesTest, WhileADialogOfTheRatesIsUpNoOtherOpens) {
  for (const Command command : kRatesCommands) {
    Then([] {
      ExpectNothingOpens();
      PressEscape(TopDialog());
    });
    CommandSend(command);
    EXPECT_FALSE(ModalIsUp());
  }
}

TEST_F(SclRatesTest, WhileTheMapIsUpNothingElseOpensAndBehindItTheRatesStillKeepTheOthersClosed) {
  Then([] { Press(TopDialog(), IDC_RATE_MAP); });
  Then([] {
    ExpectNothingOpens();
    PressEscape(TopDialog());
  });
  Then([] {
    EXPECT_EQ(TemplateOf(TopDialog()), IDD_SclSucsPerAndMapDlg);
    ExpectNothingOpens();
    Press(TopDialog(), kOkButton);
  });
  CommandSend(Command::ScheduleRates);
  EXPECT_FALSE(ModalIsUp());
}

}  // namespace
