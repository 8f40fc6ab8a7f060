// An application is started with its hand-over file, answers through it, and becomes the
// executing one.
#include "schedule/applications/hand_off.h"

#include "clock_calendar/calendar/calendar.h"
#include "platform/file.h"
#include "platform/posix/faults.h"
#include "platform/window.h"
#include "schedule/applications/application_list.h"
#include "schedule/execution/scl_alarm.h"
#include "schedule/model/scl_file.h"
#include "schedule/table/row_selection.h"
#include "services/commands.h"
#include "tests/schedule/schedule_fixture.h"
#include "tests/support/byte_order.h"
#include "tests/support/record_check.h"

namespace {

constexpr char kProgram[] = "C:\\道具\\予定 表.exe";
constexpr char kHandOff[] = "C:\\道具\\SclApliStUp.svt";
constexpr std::size_t kWhole = 971047;

class HandOffTest : public ScheduleTest {
 protected:
  void SetUp() override {
    ScheduleTest::SetUp();
    MakeFolder("C:\\道具");
    MakeFolder("C:\\other");
    ApliListAdd("C:\\other\\first.exe");
    ApliListAdd(kProgram);
  }

  // By the command, as the dialog and the menu do.
  static void StartEntry(int entry, std::uint8_t mode = 0) {
    ApliToStartSet(entry, mode);
    CommandSend(Command::ApplicationStart);
  }
  static void Select(int entry) {
    PutFile(InProgram("mirrell_apli_list_file.ali"), ListBytes(entry));
    ASSERT_EQ(ApliListRead(), 0);
  }
  static std::string ListBytes(int selected) {
    std::string bytes = "Mirrell ApliCation List:" + Number(2) + Number(0) + Number(selected);
    for (std::string path : {"C:\\other\\first.exe", kProgram, ""}) {
      path.resize(600);
      bytes += path;
    }
    return bytes;
  }
  static std::string Number(int value) {
    char bytes[4];
    PutBE32(bytes, static_cast<std::uint32_t>(value));
    return std::string(bytes, sizeof bytes);
  }
  // What an application writes: its schedule, a state and a mode.
  static void Answer(const std::string& schedule, int state, int mode, const char* file = kHandOff) {
    std::string bytes = schedule;
    bytes.resize(1000);
    bytes[998] = static_cast<char>(state);
    bytes[999] = static_cast<char>(mode);
    PutFile(file, bytes);
    SetFileTime(file, ++seconds_);
  }
  // A schedule file with one item of that length.
  static std::string PutSchedule(const std::string& name, std::uint32_t hours) {
    const std::string path = "C:\\道具\\" + name;
    SclNew();
    SclCountSet(1);
    SclItem(0).hours = hours;
    SclItem(0).alarmOn = 1;
    EXPECT_EQ(SclSaveFile(path.c_str()), 0);
    SclNew();
    return path;
  }

  static inline long long seconds_ = 2000000000;
};

TEST_F(HandOffTest, ItsRecordsLieAsTold) {
  RecordCheck<HandOffHead>();
  RecordCheck<HandOffCalendars>();
  EXPECT_EQ(RecordOffset<&HandOffHead::state>(), 998);
  EXPECT_EQ(RecordOffset<&HandOffHead::mode>(), 999);
  EXPECT_EQ(1000 + RecordOffset<&HandOffCalendars::year>(), 1003);
  EXPECT_EQ(1000 + RecordOffset<&HandOffCalendars::firstYear>(), 1007);
  EXPECT_EQ(1000 + RecordOffset<&HandOffCalendars::span>(), 1011);
}

// --- Starting

TEST_F(HandOffTest, TheHandOverFileHas971047BytesInTheToldOrder) {
  Calendar.CalenSel = 0x010203;
  Calendar.CalenYearPos = 1;
  Calendar.CalenFirstYear = 26;
  Calendar.CalenYearCount = 3;
  RecordFill(Calendar.CalenMonths, '\0');
  TextCopy(Calendar.CalenMonths[2][11].notes[31], kNoteSize, "大晦日");
  for (CalenDefinition& definition : Calendar.CalenDefinitions) RecordFill(definition, '\0');
  Calendar.CalenDefinitions[29].english = 7;
  StartEntry(2, 1);
  const std::string bytes = FileBytes(kHandOff);
  ASSERT_EQ(bytes.size(), kWhole);
  std::string head = "C:\\mirrell";
  head.resize(998);
  EXPECT_EQ(bytes.substr(0, 1000), head + std::string("\0\1", 2));
  EXPECT_EQ(bytes.substr(1000, 15), std::string("\1\2\3\0\0\0\1\0\0\0\x1a\0\0\0\3", 15));
  std::string month(4672, '\0');
  month.replace(34 + 31 * 128, 6, "大晦日");
  EXPECT_EQ(bytes.substr(1015 + 35 * 4672, 4672), month);
  EXPECT_EQ(bytes.substr(1015 + 34 * 4672, 4672), std::string(4672, '\0'));
  EXPECT_EQ(1015 + 36 * 4672, 169207);
  EXPECT_EQ(bytes[169207 + 29 * 26728 + 26688], 7);
}

TEST_F(HandOffTest, AProgramStartsInItsFolderAndTheProgramFolderIsSetBack) {
  StartEntry(2);
  ASSERT_EQ(ProcessesStarted().size(), 1U);
  const StartedProcess& started = ProcessesStarted()[0];
  EXPECT_EQ(started.commandLine, "予定 表.exe _0_0");
  EXPECT_EQ(started.folder, "C:\\道具");
  EXPECT_EQ(started.waited, 5000U);
  EXPECT_TRUE(started.closed);
  char folder[300];
  FolderGetCurrent(folder, sizeof folder);
  EXPECT_STREQ(folder, "C:\\mirrell");
  EXPECT_EQ(Applications.ApliStarted, 2);
  EXPECT_STREQ(Applications.ApliHandOffFile, kHandOff);
}

TEST_F(HandOffTest, TheSelectedEntryIsToldSoAndInWhichMode) {
  Select(2);
  StartEntry(2, 0);
  EXPECT_EQ(ProcessesStarted()[0].commandLine, "予定 表.exe _0_1");
  EXPECT_EQ(FileBytes(kHandOff)[999], 0);
  StartEntry(2, 1);
  EXPECT_EQ(ProcessesStarted()[1].commandLine, "予定 表.exe _1_1");
  EXPECT_EQ(FileBytes(kHandOff)[999], 1);
  StartEntry(1, 1);
  EXPECT_EQ(ProcessesStarted()[2].commandLine, "first.exe _0_0");
}

TEST_F(HandOffTest, WithoutAnEntryNothingStarts) {
  for (const int entry : {0, 3, -1}) StartEntry(entry);
  CommandSend(Command::ApplicationStart);
  EXPECT_TRUE(ProcessesStarted().empty());
  EXPECT_EQ(Applications.ApliStarted, 0);
}

TEST_F(HandOffTest, AProgramThatCannotBeStartedIsNotTheStartedOne) {
  FaultArm(FaultKind::Process, 1);
  StartEntry(2);
  FaultClear();
  EXPECT_EQ(Applications.ApliStarted, 0);
  EXPECT_TRUE(BoxesShown().empty());
}

TEST_F(HandOffTest, EachFailingWriteOfTheFileHarmsNothingElse) {
  int written = 0;
  for (int nth = 1; nth < 200; ++nth) {
    FaultArm(FaultKind::Write, nth);
    StartEntry(2);
    if (!FaultWasMet()) break;
    FaultClear();
    EXPECT_LT(FileBytes(kHandOff).size(), kWhole) << nth;
    EXPECT_EQ(Applications.ApliStarted, 2);
    written = nth;
  }
  FaultClear();
  EXPECT_GT(written, 2) << "head, calendars and their tables are written one by one";
  EXPECT_EQ(FileBytes(kHandOff).size(), kWhole);
  FaultArm(FaultKind::Create, 1);
  StartEntry(2);
  FaultClear();
  Tick(1);
  EXPECT_EQ(Applications.ApliStarted, 0) << "there is no file to watch";
}

// --- The watch

TEST_F(HandOffTest, AnUnchangedFileIsLookedAtAndNotRead) {
  StartEntry(2);
  FaultArm(FaultKind::Open, 1000);
  Tick(10);
  EXPECT_EQ(FaultCalls(FaultKind::Open), 0);
  FaultClear();
  EXPECT_EQ(Applications.ApliStarted, 2);
}

TEST_F(HandOffTest, AFileThatHasGoneEndsTheWatch) {
  StartEntry(2);
  RemoveFile(kHandOff);
  EXPECT_FALSE(SclHandOffCheck());
  EXPECT_EQ(Applications.ApliStarted, 0);
  EXPECT_STREQ(Applications.ApliHandOffFile, "");
}

TEST_F(HandOffTest, State1WithMode1MakesTheStartedEntryTheSelectedOneAndExecutesItsSchedule) {
  const std::string schedule = PutSchedule("月.GPI", 7);
  StartEntry(2);
  Answer(schedule, 1, 1);
  Tick(1);
  EXPECT_EQ(Applications.ApliSelected, 2);
  EXPECT_EQ(Applications.ApliPending, 0);
  EXPECT_EQ(Applications.ApliStarted, 2) << "it runs on";
  EXPECT_STREQ(Applications.ApliSchedule.path, schedule.c_str());
  EXPECT_EQ(FileBytes(InProgram("mirrell_apli_list_file.ali")).substr(32, 4), Number(2));
  EXPECT_TRUE(Schedule.SclExecActive);
  EXPECT_EQ(Schedule.SclExecMark, SclMark::Running);
  EXPECT_EQ(Schedule.SclExecTable.items[0].hours, 7U);
  // Nothing more until the file changes again.
  Schedule.SclExecTable.items[0].hours = 8;
  Tick(3);
  EXPECT_EQ(Schedule.SclExecTable.items[0].hours, 8U);
}

TEST_F(HandOffTest, State2EndsTheWatchToo) {
  const std::string schedule = PutSchedule("月.GPI", 7);
  StartEntry(2);
  Answer(schedule, 2, 1);
  Tick(1);
  EXPECT_EQ(Applications.ApliSelected, 2);
  EXPECT_EQ(Applications.ApliStarted, 0);
  Answer("C:\\x", 1, 1);
  Tick(2);
  EXPECT_STREQ(Applications.ApliSchedule.path, schedule.c_str());
}

TEST_F(HandOffTest, AnApplicationThatWritesState1WithMode0ClearsTheSelection) {
  Select(2);
  StartEntry(2);
  Answer("C:\\x.GPI", 1, 0);
  Tick(1);
  EXPECT_EQ(Applications.ApliSelected, 0);
  EXPECT_EQ(Applications.ApliPending, 0);
  EXPECT_STREQ(Applications.ApliSchedule.path, "") << "only mode 1 brings a schedule";
  EXPECT_EQ(FileBytes(InProgram("mirrell_apli_list_file.ali")), ListBytes(0));
}

TEST_F(HandOffTest, OtherStatesAreNoAnswer) {
  Select(2);
  StartEntry(2);
  for (const int state : {0, 3, 255}) {
    Answer("C:\\x.GPI", state, 1);
    EXPECT_FALSE(SclHandOffCheck()) << state;
    EXPECT_EQ(Applications.ApliPending, 0);
    EXPECT_EQ(Applications.ApliStarted, 2);
  }
}

// A program that writes when the tick comes.
TEST_F(HandOffTest, AFileThatIsNotWholeYetIsLookedAtAgain) {
  StartEntry(2);
  for (const std::size_t size : {std::size_t{0}, std::size_t{500}, std::size_t{999}}) {
    PutFile(kHandOff, std::string(size, '\1'));
    SetFileTime(kHandOff, 3000000);
    EXPECT_FALSE(SclHandOffCheck()) << size;
    EXPECT_EQ(Applications.ApliPending, 0);
  }
  Answer("C:\\x.GPI", 1, 1);
  SetFileTime(kHandOff, 3000000);
  EXPECT_TRUE(SclHandOffCheck());
  EXPECT_EQ(Applications.ApliPending, 3);
}

TEST_F(HandOffTest, AFileThatStaysCutIsLetBeAfterTenLooksUntilItChanges) {
  StartEntry(2);
  for (const int second : {3000000, 3000060}) {
    PutFile(kHandOff, std::string(500, '\1'));
    SetFileTime(kHandOff, second);
    FaultArm(FaultKind::Open, 100000);
    Tick(100);
    EXPECT_EQ(FaultCalls(FaultKind::Open), 10);
    FaultClear();
    EXPECT_EQ(Applications.ApliStarted, 2) << "it is watched on";
  }
  Answer("C:\\x.GPI", 1, 1);
  EXPECT_TRUE(SclHandOffCheck());
}

TEST_F(HandOffTest, APathWithoutATerminatorIsEnded) {
  StartEntry(2);
  Answer(std::string(998, 'x'), 1, 1);
  EXPECT_TRUE(SclHandOffCheck());
  EXPECT_EQ(std::string(Applications.ApliSchedule.path), std::string(599, 'x'));
}

TEST_F(HandOffTest, AHundredThousandDamagedAnswersDoNoHarm) {
  StartEntry(2);
  for (unsigned seed = 1; seed <= 100000; ++seed) {
    if (Applications.ApliStarted == 0) Applications.ApliStarted = 2;
    TextCopy(Applications.ApliHandOffFile, sizeof Applications.ApliHandOffFile, kHandOff);
    std::string noise = RecordNoise(1000, seed);
    if (seed % 2 == 0) {  // most of these are answers
      noise[998] &= 3;
      noise[999] &= 1;
    }
    if (seed % 100 == 1) {
      PutFile(kHandOff, noise);
    } else {
      const int file = FileOpen(kHandOff, OpenMode::ReadWrite);
      FileWrite(file, noise.data(), 1000);
      FileClose(file);
    }
    Applications.ApliHandOffTime = 0;
    SclHandOffCheck();
    ASSERT_EQ(Applications.ApliSchedule.path[599], '\0');
    ASSERT_TRUE(Applications.ApliPending == 0 || Applications.ApliPending == 1 ||
                Applications.ApliPending == 3);
  }
  Applications.ApliStarted = 0;
}

// --- Applying

TEST_F(HandOffTest, AnOpenTableShowsTheScheduleThatIsBrought) {
  const std::string schedule = PutSchedule("月.GPI", 7);
  CommandSend(Command::ScheduleNew);
  ASSERT_NE(SclTable.hSclTableWnd, nullptr);
  ASSERT_EQ(SclTable.SclTableView.lines, 31);
  RowChoose(5);
  StartEntry(2);
  Answer(schedule, 1, 1);
  Tick(1);
  EXPECT_EQ(SclTable.SclTableView.lines, 1);
  EXPECT_EQ(RowSelection.currentRow, 0);
  SclDirtyClear(kSclTableChanged | kSclSettingsChanged);
  SendClose(SclTable.hSclTableWnd);
}

TEST_F(HandOffTest, WithoutAChangeTheListIsNotWritten) {
  RemoveFile(InProgram("mirrell_apli_list_file.ali"));
  CommandSend(Command::ApplicationHandOff);
  EXPECT_FALSE(FileThere(InProgram("mirrell_apli_list_file.ali")));
}

TEST_F(HandOffTest, AnAppliedChangeForgetsTheAlarmsOfTheDay) {
  SclAlarm.year = 2026;
  SclAlarm.count = 3;
  SclAlarm.announce = 2;
  CommandSend(Command::ApplicationHandOff);
  EXPECT_EQ(SclAlarm.year, 0);
  EXPECT_EQ(SclAlarm.count, 0);
  EXPECT_EQ(SclAlarm.announce, 0);
}

TEST_F(HandOffTest, AScheduleThatCannotBeLoadedIsTakenWithoutAWord) {
  StartEntry(2);
  Answer("C:\\道具\\none.GPI", 1, 1);
  Tick(1);
  EXPECT_EQ(Applications.ApliSelected, 2);
  EXPECT_FALSE(Schedule.SclExecActive);
  EXPECT_TRUE(BoxesShown().empty());
}

// --- Changed calendars

TEST_F(HandOffTest, AChangedCalendarIsToldByWhetherTheSelectedApplicationRuns) {
  CommandSend(Command::CalendarChanged);
  EXPECT_TRUE(BoxesShown().empty()) << "none is selected";
  Select(2);
  ExpectBox("予定表でカレンダー変更を有効にするには、予定表を起動しセーブする必要があります",
            "カレンダーが変更されました(ミルレール)");
  CommandSend(Command::CalendarChanged);
  StartEntry(1);
  ExpectBox("予定表でカレンダー変更を有効にするには、予定表を起動しセーブする必要があります",
            "カレンダーが変更されました(ミルレール)");
  CommandSend(Command::CalendarChanged);
  StartEntry(2);
  ExpectBox("予定表の編集データセーブ後に予定表を閉じて再起動させてください",
            "カレンダーが変更されました(ミルレール)", BoxAnswer::Ok,
            [] { CommandSend(Command::CalendarChanged); });
  CommandSend(Command::CalendarChanged);
  EXPECT_EQ(BoxesShown().size(), 3U);
}

}  // namespace
