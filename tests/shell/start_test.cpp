// The start sequence and the end of the program.
#include "shell/start.h"

#include "character/character.h"
#include "character/stage.h"
#include "clock_calendar/calendar.h"
#include "clock_calendar/clock.h"
#include "platform/posix/faults.h"
#include "platform/window.h"
#include "shell/entry.h"
#include "shell/settings.h"
#include "shell/shell.h"
#include "shell/tick.h"
#include "tests/support/program.h"

namespace {

using Words = std::vector<std::string>;

class StartTest : public ProgramTest {};

TEST_F(StartTest, WithNoSystemFileTheStageComesUpAtTheDefaultPlaceAndTheTimerRuns) {
  ClockShow = 1;
  CalenShow = 1;
  StartProgram();
  const Rect place = WindowRect(hMainWnd);
  EXPECT_EQ(place.left, 500);
  EXPECT_EQ(place.top, 300);
  EXPECT_TRUE(IsVisible(hMainWnd));
  EXPECT_EQ(hClockWnd, nullptr);
  EXPECT_EQ(hCalenWnd, nullptr);
  EXPECT_TRUE(TimerIsRunning(hMainWnd, kTickTimer));
  const std::int32_t before = TickCount;
  Tick(3);
  EXPECT_EQ(TickCount, before + 3);
}

TEST_F(StartTest, BrushesAndPensAreMadeInOrder) {
  const LiveObjects before = DiagnosticsLive();
  DrawingObjectsCreate();
  EXPECT_EQ(DiagnosticsLive().brushes - before.brushes, 12);
  EXPECT_EQ(DiagnosticsLive().pens - before.pens, 11);
  EXPECT_EQ(kBrushColours[kBrushC8C800], 0xC8C800U);
  EXPECT_EQ(kBrushColours[kBrush0000E6], 0x0000E6U);
  EXPECT_EQ(kBrushColours[kBrushFF0000], 0xFF0000U);
  DrawingObjectsDelete();
  EXPECT_EQ(LiveText(DiagnosticsLive()), LiveText(before));
}

TEST_F(StartTest, NoTimerShowsTheBoxWithTheNameAsTextAndGoesOn) {
  FaultArm(FaultKind::Timer, 1);
  ExpectBox("ミルレール", "タイマー設定できません");
  StartProgram();
  EXPECT_FALSE(TimerIsRunning(hMainWnd, kTickTimer));
  EXPECT_NE(hMainWnd, nullptr);
  EXPECT_EQ(BoxesShown().at(0).icon, BoxIcon::Exclamation);
}

TEST_F(StartTest, WorkBlocksFoldersAndDefaultsStandReady) {
  StartProgram();
  ASSERT_NE(CastBlock, nullptr);
  ASSERT_NE(ScopeBlock, nullptr);
  CastBlock[kCastBlockSize - 1] = 1;
  ScopeBlock[kScopeBlockSize - 1] = 1;
  EXPECT_STREQ(RootFolder, "C:\\mirrell");
  EXPECT_STREQ(PickFolder, "C:\\mirrell");
  for (const auto& folder : PickerStartFolders) EXPECT_STREQ(folder, "C:\\mirrell");
  // 2026-11-21: years from 2000, months and days from 0.
  EXPECT_EQ(TodayYear, 26);
  EXPECT_EQ(TodayMonth, 10);
  EXPECT_EQ(TodayDay, 20);
  EXPECT_EQ(NoticeX, 400);
  EXPECT_EQ(NoticeY, 100);
  EXPECT_EQ(NoticeW, 480);
  EXPECT_EQ(NoticeH, 300);
  EXPECT_EQ(StageWidth, 300);
  EXPECT_EQ(StageHeight, 200);
  EXPECT_EQ(CharWidth, 8);
  EXPECT_EQ(LineHeight, 16);
  EXPECT_EQ(ScreenWidth, 1024);
  EXPECT_EQ(ScreenHeight, 768);
}

TEST_F(StartTest, SavedSettingsAreTakenAtTheStart) {
  StageX = 77;
  StageY = 55;
  ClockDesign = kClockNone;
  ASSERT_EQ(SysFileWrite(), 0);
  StageX = 0;
  StageY = 0;
  StartProgram();
  EXPECT_EQ(StageX, 77);
  EXPECT_EQ(StageY, 55);
}

TEST_F(StartTest, TheApplicationListFileIsMadeWhenItIsMissing) {
  StartProgram();
  // Magic of 24 bytes, three counts of 0, an empty schedule path of 600 bytes.
  const std::string file = FileBytes("C:\\mirrell\\mirrell_apli_list_file.ali");
  ASSERT_EQ(file.size(), 24U + 12U + 600U);
  EXPECT_EQ(file.substr(0, 24), "Mirrell ApliCation List:");
  EXPECT_EQ(file.substr(24), std::string(612, '\0'));
}

TEST_F(StartTest, ACommandLineWithoutTheMarkIsConsumedAndHasNoEffect) {
  StartProgram("hello");
  const Words before = FolderNames("C:\\mirrell");
  MainTick();
  EXPECT_STREQ(PendingCommandLine, "");
  EXPECT_STREQ(CommandLine, "hello");
  EXPECT_EQ(FolderNames("C:\\mirrell"), before);
}

TEST_F(StartTest, TheFirstRunMarkWritesApplicationListAndSettings) {
  StartProgram("_1_");
  EXPECT_FALSE(FileThere("C:\\mirrell\\mirrell_sys_file.svs"));
  MainTick();
  EXPECT_EQ(FileBytes("C:\\mirrell\\mirrell_sys_file.svs").size(), 172720U);
  const std::string list = FileBytes("C:\\mirrell\\mirrell_apli_list_file.ali");
  ASSERT_EQ(list.size(), 24U + 12U + 600U + 600U);
  EXPECT_EQ(list.substr(24, 4), std::string("\0\0\0\1", 4));
  EXPECT_STREQ(list.c_str() + 36, "C:\\mirrell\\スケジュール表\\予定表 千里万象.exe");
}

TEST_F(StartTest, EveryFaultOfMemoryAtTheStartIsSurvived) {
  for (int nth = 1; nth < 20; ++nth) {
    FaultArm(FaultKind::Memory, nth);
    StartProgram();
    Ticks(3);
    const bool met = FaultWasMet();
    SendClose(hMainWnd);
    EXPECT_TRUE(QuitWasAsked());
    TearDown();
    SetUp();
    if (!met) break;
  }
}

class ShutdownTest : public ProgramTest {};

TEST_F(ShutdownTest, CloseGoesThroughDestroyReleasesEverythingAndQuits) {
  const LiveObjects before = DiagnosticsLive();
  StartProgram();
  SendClose(hMainWnd);
  EXPECT_TRUE(QuitWasAsked());
  EXPECT_TRUE(WindowIsOpen(hMainWnd)) << "the window itself is never destroyed";
  EXPECT_FALSE(TimerIsRunning(hMainWnd, kTickTimer));
  EXPECT_EQ(CastBlock, nullptr);
  EXPECT_EQ(ScopeBlock, nullptr);
  const LiveObjects after = DiagnosticsLive();
  EXPECT_EQ(after.brushes, before.brushes);
  EXPECT_EQ(after.pens, before.pens);
  EXPECT_EQ(after.blocks, before.blocks);
  EXPECT_EQ(after.timers, before.timers);
}

TEST_F(ShutdownTest, ClosingWithFeatureWindowsOpenLeavesNoSavedState) {
  StartProgram();
  hMailNoticeWnd = OpenListener();
  const Words before = FolderNames("C:\\mirrell");
  SendClose(hMainWnd);
  EXPECT_TRUE(QuitWasAsked());
  EXPECT_EQ(FolderNames("C:\\mirrell"), before);
  EXPECT_EQ(TakeHeard(), Words{}) << "feature windows end with the process, unasked";
  EXPECT_TRUE(WindowIsOpen(hMailNoticeWnd));
  WindowDestroy(hMailNoticeWnd);
}

class ProcessEntryTest : public ProgramTest {};

TEST_F(ProcessEntryTest, ReturnsTheQuitCode) {
  Then([] { SendClose(hMainWnd); });
  EXPECT_EQ(ProcessEntry("", 1), 0);
}

TEST_F(ProcessEntryTest, NoWindowGivesZero) {
  FaultArm(FaultKind::Window, 1);
  EXPECT_EQ(ProcessEntry("", 1), 0);
}

}  // namespace
