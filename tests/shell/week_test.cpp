// Hours of the whole program on its data set: clock, calendar, a schedule with alarms,
// notes, alarms of the clock, and nobody there but somebody who closes what has been
// announced. The clock goes on with the ticks, 30 ms each, as the timer gives them while
// it rests.
//
//   MIRRELL_WEEK_HOURS=168 MIRRELL_WEEK_TICKS=1 shell_tests --gtest_filter='WeekTest.*'
//
// runs seven days, each of their 20,160,000 ticks fired by itself.
#include <cstdlib>
#include <map>

#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/clock/clock.h"
#include "platform/posix/test_clock.h"
#include "platform/window.h"
#include "resources/clock_calendar_ids.h"
#include "resources/schedule_ids.h"
#include "schedule/model/scl_dates.h"
#include "schedule/model/scl_exec.h"
#include "services/commands.h"
#include "services/program.h"
#include "services/text.h"
#include "services/today.h"
#include "shell/file_watch.h"
#include "shell/tick.h"
#include "shell/tick_timer.h"
#include "tests/support/places.h"
#include "tests/support/program.h"

namespace {

constexpr int kHours = 3;
constexpr int kWeekHours = 168;
constexpr int kTicksOfHour = 3600 * 1000 / kTickMilliseconds;
constexpr int kWatchTicks = 201;

// From when on the counts are held against each other: by then every picture of the clock
// has been shown once, and is kept.
constexpr int kWarmHours = 26;

// How often something comes that comes every day, first after so many minutes.
int Daily(int hours, int first) {
  const int left = hours * 60 - first;
  return left < 0 ? 0 : left / (24 * 60) + 1;
}
int Once(int hours, int minutes) {
  return hours * 60 >= minutes ? 1 : 0;
}

int FromEnvironment(const char* name, int otherwise) {
  const char* value = std::getenv(name);
  return value ? std::atoi(value) : otherwise;
}

// How often a window of each template was opened.
std::map<int, int>& Opened() {
  static std::map<int, int> opened;
  return opened;
}

class WeekTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    const std::string make = std::string(kNewdataProgram) + " " + Folder() + " >/dev/null 2>&1";
    ASSERT_EQ(std::system(make.c_str()), 0);
    // A Wednesday in the last week of a year, in the evening.
    TestClockSet({2026, 12, 30, 3, 22, 0, 0, 0});
    StartProgram();
    ClockStands();
    CalendarStands();
    ScheduleRuns();
    Opened().clear();
    Overhear([](const Event& event) {
      if (event.kind == EventKind::Init) ++Opened()[TemplateOf(event.window)];
    });
  }
  void TearDown() override {
    SendClose(Clock.hClockWnd);
    SendClose(Calendar.hCalenWnd);
    ProgramTest::TearDown();
  }

  // It strikes every hour, and rings at half past eleven and at half past twelve: a slot
  // rings again only when another one has rung.
  static void ClockStands() {
    ClockWantedSet(true, 0);
    ClockWantedTake();
    Clock.ClockStrikeMode = kStrikeEveryHour;
    for (const int slot : {0, 1}) {
      AlarmSlot& alarm = Clock.ClockEvents[2 + slot];
      alarm.enabled = 1;
      alarm.hour = slot == 0 ? 23 : 0;
      alarm.minute = 30;
      alarm.performance = 1;
      TextCopy(alarm.comment, sizeof alarm.comment, "起きる");
    }
    CommandSend(Command::ClockOpen);
    ASSERT_NE(Clock.hClockWnd, nullptr);
  }

  // Three years with notes on 31 December and on 2 January, announced on their days.
  static void CalendarStands() {
    CalenSpanSet(26, kCalenYearMax);
    CalenNoteSet(0, 11, 30, "大掃除");
    CalenNoteSet(1, 0, 1, "初詣");
    Calendar.CalenNoteMode = 1;
    Calendar.CalenShow = 1;
    CommandSend(Command::CalendarOpen);
    ASSERT_NE(Calendar.hCalenWnd, nullptr);
  }

  // Two lines a day, at 22:20 and 1:45, and work hours all day long.
  static void ScheduleRuns() {
    SclKindSet(1);
    SclNewDefaults(26, 11, 29);
    for (SclWorkDayRow& row : SclRows()) row = {24, 0, 24};
    constexpr int kDates[][3] = {{26, 11, 29}, {26, 11, 30}, {27, 0, 0}, {27, 0, 1},
                                 {27, 0, 2},   {27, 0, 3},   {27, 0, 4}, {27, 0, 5}};
    SclCountSet(2 * static_cast<int>(std::size(kDates)));
    int place = 0;
    for (const auto& date : kDates) {
      Line(SclItem(place++), date, 22, 20);
      Line(SclItem(place++), date, 1, 45);
    }
    SclExecRefresh();
    ASSERT_TRUE(Schedule.SclAlarmFlag);
  }
  static void Line(SclItemRec& item, const int (&date)[3], int hour, int minute) {
    item.hours = 1;
    item.alarmOn = 1;
    item.start = SclItemDateOf({date[0], date[1], date[2], hour});
    item.end = SclItemDateOf({date[0], date[1], date[2], hour + 1});
    item.mirrorStart.minute = static_cast<std::uint8_t>(minute);
  }

  // The clock goes on until the timer fires again, and it fires. Returns the ticks of it.
  int Go() const {
    const int milliseconds = byTick_ ? kTickMilliseconds : TimerPeriod(Program.hMainWnd, kTickTimer);
    TestClockGo(static_cast<unsigned>(milliseconds));
    if (byTick_) {
      MainTick();
    } else {
      TickTimerFired();
    }
    return milliseconds / kTickMilliseconds;
  }

  // What a minute must have brought.
  void Minute(const LocalTime& now) {
    ++minutes_;
    ASSERT_EQ(Clock.ClockMinute, now.minute);
    ASSERT_EQ(Clock.ClockHour12, now.hour % 12);
    ASSERT_EQ(Today.TodayDay, now.day - 1) << now.hour;
    ASSERT_EQ(Calendar.CalenMonthPos, now.month - 1);
    ASSERT_EQ(Calendar.CalenYears[Calendar.CalenYearPos], now.year - 2000);
    DrawingClear();
    // Somebody has read what was announced a minute ago.
    for (const WindowHandle window : OpenWindows()) {
      const int id = TemplateOf(window);
      if (id == IDD_FlyingBat5 || id == IDD_FlyingBat4) SendClose(window);
    }
    if (now.minute == 0) Hour();
  }

  // Everything that was announced has been read.
  void Hour() {
    EXPECT_EQ(OpenWindowCount(), 3) << "the stage, the clock, the calendar";
    LiveObjects live = DiagnosticsLive();
    if (minutes_ < kWarmHours * 60) live.blocks = 0;
    if (minutes_ == kWarmHours * 60 || live_.empty()) live_ = LiveText(live);
    EXPECT_EQ(LiveText(live), live_) << "after " << minutes_ << " minutes";
  }

  // All hours, and how often one was struck.
  int Run(int hours) {
    const int end = kTicksOfHour * hours;
    int strikes = 0;
    bool struck = false;
    LocalTime now{};
    for (int ticks = 0; ticks < end && !HasFatalFailure();) {
      const int minute = now.minute;
      ticks += Go();
      TimeGetLocal(&now);
      if (Clock.strike.on && !struck) ++strikes;
      struck = Clock.strike.on;
      if (now.minute != minute) Minute(now);
    }
    return strikes;
  }

  bool byTick_ = FromEnvironment("MIRRELL_WEEK_TICKS", 0) != 0;
  int minutes_ = 0;
  std::string live_;
};

TEST_F(WeekTest, HoursOfTicksBringTheirMinutesStrikesAndMidnightsAndLeaveNothingBehind) {
  const int hours = FromEnvironment("MIRRELL_WEEK_HOURS", kHours);
  ASSERT_LE(hours, kWeekHours) << "the lines of the schedule are written for a week";
  Go();
  const std::int64_t first = TickCounts.TickCount;
  const int strikes = Run(hours);
  EXPECT_EQ(minutes_, hours * 60);
  EXPECT_EQ(strikes, hours);
  const std::int64_t ticks = TickCounts.TickCount - first;
  EXPECT_GE(ticks, std::int64_t{kTicksOfHour} * hours);
  EXPECT_LT(ticks, std::int64_t{kTicksOfHour} * hours + kWatchTicks);
  // The clock's alarms, the lines of the schedule and the notes, and nothing else.
  const std::map<int, int> expected{
      {IDD_FlyingBat5, Daily(hours, 90) + Daily(hours, 150)},
      {IDD_FlyingBat4, Daily(hours, 20) + Daily(hours, 225) + Once(hours, 120) + Once(hours, 50 * 60)}};
  EXPECT_EQ(Opened(), expected);
  EXPECT_TRUE(BoxesShown().empty());
  EXPECT_TRUE(ProcessesStarted().empty());
}

}  // namespace
