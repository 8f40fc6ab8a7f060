// The start sequence and the end of the program.
#include "shell/start.h"

#include <algorithm>
#include <map>

#include "character/alarm_images.h"
#include "character/character.h"
#include "character/character_file.h"
#include "character/character_tables.h"
#include "character/motion.h"
#include "character/notice_window.h"
#include "character/options.h"
#include "character/stage.h"
#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/clock/clock.h"
#include "filetools/open/open_history.h"
#include "mail_music/mail/mail.h"
#include "platform/canvas.h"
#include "platform/entry.h"
#include "platform/posix/faults.h"
#include "platform/window.h"
#include "schedule/table/table_scroll.h"
#include "services/dialog_family.h"
#include "services/drawing_objects.h"
#include "services/file_picker.h"
#include "services/program.h"
#include "services/screen_figures.h"
#include "services/today.h"
#include "services/work_blocks.h"
#include "shell/command_line.h"
#include "shell/layout.h"
#include "shell/panel.h"
#include "shell/settings.h"
#include "shell/tick.h"
#include "shell/tick_timer.h"
#include "tests/character/chara_files.h"
#include "tests/support/program.h"
#include "world/world_list.h"

namespace {

using Words = std::vector<std::string>;

class StartTest : public ProgramTest {};

TEST_F(StartTest, WithNoSystemFileTheStageComesUpAtTheDefaultPlaceAndTheTimerRuns) {
  Clock.ClockShow = 1;
  ListenToEverything();
  StartProgram();
  EXPECT_EQ(TakeHeard(), Words{}) << "no clock is asked for";
  const Rect place = WindowRect(Program.hMainWnd);
  EXPECT_EQ(place.left, 500);
  EXPECT_EQ(place.top, 300);
  EXPECT_TRUE(IsVisible(Program.hMainWnd));
  EXPECT_TRUE(TimerIsRunning(Program.hMainWnd, kTickTimer));
  const std::int32_t before = TickCounts.TickCount;
  Tick(3);
  EXPECT_EQ(TickCounts.TickCount, before + 3);
}

// A data set whose settings want the clock and an alarm character for the mail, which
// is character 6 with one picture.
class StartDataTest : public StartTest {
 protected:
  void SetUp() override {
    StartTest::SetUp();
    SetFactorySettings();
    ASSERT_EQ(CharaFileWrite(), 0);  // alarm characters 6, 8, 9; selections 1, 1, 0
    MakeFolder("C:\\mirrell\\キャラクタ");
    ASSERT_TRUE(PutFile("C:\\mirrell\\キャラクタ\\Chara6_1.bmp", BmpFile(20, 20)));
    Clock.ClockShow = 1;
    Calendar.CalenShow = 1;
    ListenToEverything();
  }
};

TEST_F(StartDataTest, WithASystemFileTheAlarmImagesAreLoadedAndTheClockIsOpened) {
  ASSERT_EQ(SysFileWrite(), 0);
  StartProgram();
  EXPECT_NE(AlarmImages.AlarmRows[0].pictures[0], nullptr);
  EXPECT_NE(AlarmImages.AlarmRows[1].pictures[0], nullptr);
  EXPECT_EQ(TakeHeard(), Words{"main 2254"});
}

TEST_F(StartDataTest, WithNoSystemFileThereAreNoAlarmImagesAndNoClock) {
  StartProgram();
  ASSERT_EQ(Character.AlarmCharaSel[0], 1);
  ASSERT_EQ(CharaTables.AlarmCharaCount, 3);
  EXPECT_EQ(AlarmImages.AlarmRows[0].pictures[0], nullptr);
  EXPECT_EQ(TakeHeard(), Words{});
}

// The settings count as read, so the start goes to its end with the state as it was.
TEST_F(StartDataTest, SettingsWithAnotherMagicLetTheStartGoOn) {
  ASSERT_EQ(SysFileWrite(), 0);
  std::string file = FileBytes("C:\\mirrell\\mirrell_sys_file.svs");
  file.at(0) = 'm';
  ASSERT_TRUE(PutFile("C:\\mirrell\\mirrell_sys_file.svs", file));
  Character.StageX = 77;
  CharaTables.MainCharaCount = 0;
  StartProgram();
  EXPECT_EQ(Character.StageX, 77);
  EXPECT_EQ(CharaTables.MainCharaCount, 4);
  EXPECT_TRUE(FileThere("C:\\mirrell\\mirrell_apli_list_file.ali"));
  EXPECT_NE(AlarmImages.AlarmRows[0].pictures[0], nullptr);
  EXPECT_EQ(TakeHeard(), Words{"main 2254"});
  EXPECT_EQ(FileBytes("C:\\mirrell\\mirrell_sys_file.svs"), file);
}

TEST_F(StartTest, BrushesAndPensAreMadeInOrder) {
  constexpr Colour kBrushesInOrder[] = {0xBEBEBE, 0xC8C8C8, 0xC8C800, 0xFFFFFF, 0xFFFF00, 0xFF8080,
                                        0x0000E6, 0x00C800, 0x8CE6F0, 0x00F0F0, 0xF000F0, 0xFF0000};
  constexpr struct {
    bool dotted;
    int width;
    Colour colour;
  } kPensInOrder[] = {{false, 1, 0xF0F0F0}, {false, 1, 0x646464}, {true, 1, 0x646464},  {true, 1, 0x6464F0},
                      {true, 1, 0xC8C800},  {false, 1, 0xE6E6E6}, {false, 1, 0x646464}, {false, 1, 0xFFFFFF},
                      {false, 1, 0x0000FF}, {false, 3, 0x000000}, {false, 3, 0x0000FF}};
  const LiveObjects before = DiagnosticsLive();
  DrawingObjectsCreate();
  EXPECT_EQ(DiagnosticsLive().brushes - before.brushes, 12);
  EXPECT_EQ(DiagnosticsLive().pens - before.pens, 11);
  const WindowHandle window = OpenListener();
  DrawingClear();
  Canvas* canvas = CanvasGet(window);
  for (BrushHandle brush : Drawing.Brushes) {
    CanvasBrush(canvas, brush);
    CanvasRectangle(canvas, 0, 0, 9, 9);
  }
  for (PenHandle pen : Drawing.Pens) {
    CanvasPen(canvas, pen);
    CanvasRectangle(canvas, 0, 0, 9, 9);
  }
  CanvasRelease(canvas);
  const std::vector<DrawCall> drawn = Drawings(window);
  ASSERT_EQ(drawn.size(), 12U + 11U);
  for (std::size_t i = 0; i < 12; ++i) {
    EXPECT_TRUE(drawn[i].filled) << i;
    EXPECT_EQ(drawn[i].brush, kBrushesInOrder[i]) << i;
  }
  for (std::size_t i = 0; i < 11; ++i) {
    EXPECT_EQ(drawn[12 + i].dotted, kPensInOrder[i].dotted) << i;
    EXPECT_EQ(drawn[12 + i].penWidth, kPensInOrder[i].width) << i;
    EXPECT_EQ(drawn[12 + i].pen, kPensInOrder[i].colour) << i;
  }
  EXPECT_EQ(Drawing.FaceBrushColour, FaceColour());
  WindowDestroy(window);
  DrawingObjectsDelete();
  EXPECT_EQ(LiveText(DiagnosticsLive()), LiveText(before));
}

TEST_F(StartTest, NoTimerShowsTheBoxWithTheNameAsTextAndGoesOn) {
  FaultArm(FaultKind::Timer, 1);
  ExpectBox("ミルレール", "タイマー設定できません");
  StartProgram();
  EXPECT_FALSE(TimerIsRunning(Program.hMainWnd, kTickTimer));
  EXPECT_NE(Program.hMainWnd, nullptr);
  EXPECT_EQ(BoxesShown().at(0).icon, BoxIcon::Exclamation);
}

TEST_F(StartTest, WorkBlocksFoldersAndDefaultsStandReady) {
  StartProgram();
  ASSERT_NE(WorkBlocks.CastBlock, nullptr);
  ASSERT_NE(WorkBlocks.ScopeBlock, nullptr);
  WorkBlocks.CastBlock[kCastBlockSize - 1] = 1;
  WorkBlocks.ScopeBlock[kScopeBlockSize - 1] = 1;
  EXPECT_STREQ(Program.RootFolder, "C:\\mirrell");
  EXPECT_STREQ(Picker.PickFolder, "C:\\mirrell");
  for (const auto& folder : Picker.PickerStartFolders) EXPECT_STREQ(folder, "C:\\mirrell");
  // 2026-11-21: years from 2000, months and days from 0.
  EXPECT_EQ(Today.TodayYear, 26);
  EXPECT_EQ(Today.TodayMonth, 10);
  EXPECT_EQ(Today.TodayDay, 20);
  EXPECT_EQ(NoticePlace.NoticeX, 400);
  EXPECT_EQ(NoticePlace.NoticeY, 100);
  EXPECT_EQ(NoticePlace.NoticeW, 480);
  EXPECT_EQ(NoticePlace.NoticeH, 300);
  EXPECT_EQ(Stage.StageWidth, 300);
  EXPECT_EQ(Stage.StageHeight, 200);
  EXPECT_EQ(Screen.CharWidth, 8);
  EXPECT_EQ(Screen.LineHeight, 16);
  EXPECT_EQ(Screen.ScreenWidth, 1024);
  EXPECT_EQ(Screen.ScreenHeight, 768);
}

// One character in the list's header (its name alone in the data file) and no figures.
TEST_F(StartTest, TheWorldListIsReadAtTheStart) {
  MakeFolder("C:\\mirrell\\キャラクタ");
  ASSERT_TRUE(PutFile("C:\\mirrell\\キャラクタ\\EDTCFLAG.edf", std::string("....\0\0\0\1\0\0\0\0", 12)));
  std::string data(1520, '\0');
  data.replace(1, 3, "Tom");
  ASSERT_TRUE(PutFile("C:\\mirrell\\キャラクタ\\EDTCDATA.edf", data));
  StartProgram();
  EXPECT_STREQ(WorldCharaName(1), "Tom");
}

// As in a folder whose name the code page cannot hold, with no short name either.
TEST_F(StartTest, AProgramFolderWithNoNameIsToldAndTheProgramEnds) {
  FaultArm(FaultKind::FolderGet, 1);
  ExpectBox("プログラムのフォルダーの名前を読めません。\r\n別の名前のフォルダーに移してください。",
            "ミルレール");
  EXPECT_EQ(ProcessEntry("", 1), 0);
  EXPECT_TRUE(QuitWasAsked());
  EXPECT_FALSE(IsVisible(Program.hMainWnd));
  EXPECT_TRUE(FolderNames("C:\\mirrell").empty());
  EXPECT_EQ(WorkBlocks.CastBlock, nullptr);
}

TEST_F(StartTest, SavedSettingsAreTakenAtTheStart) {
  Character.StageX = 77;
  Character.StageY = 55;
  Clock.ClockDesign = kClockNone;
  ASSERT_EQ(SysFileWrite(), 0);
  Character.StageX = 0;
  Character.StageY = 0;
  StartProgram();
  EXPECT_EQ(Character.StageX, 77);
  EXPECT_EQ(Character.StageY, 55);
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
  EXPECT_STREQ(ProgramLine.PendingCommandLine, "");
  EXPECT_STREQ(ProgramLine.CommandLine, "hello");
  EXPECT_EQ(FolderNames("C:\\mirrell"), before);
}

TEST_F(StartTest, OnlyAllThreeCharactersOfTheMarkMakeAFirstRun) {
  for (const char* line : {"_1", "_1x", "_2_", "-1_", " _1_", "1_"}) {
    StartProgram(line);
    const Words before = FolderNames("C:\\mirrell");
    MainTick();
    EXPECT_STREQ(ProgramLine.CommandLine, line);
    EXPECT_EQ(FolderNames("C:\\mirrell"), before) << line;
    TearDown();
    SetUp();
  }
  StartProgram("_1_ and more");
  MainTick();
  EXPECT_TRUE(FileThere("C:\\mirrell\\mirrell_sys_file.svs"));
}

TEST_F(StartTest, TheFirstRunMovesTheStageTheClockAndTheCalendar) {
  StartProgram("_1_");
  Clock.hClockWnd = OpenListener("clock");
  Calendar.hCalenWnd = OpenListener("calendar");
  TakeHeard();
  Stage.StageWidth = 90;
  Stage.StageHeight = 120;
  Calendar.CalenW = 200;
  Calendar.CalenH = 220;
  MainTick();
  const Words heard = TakeHeard();
  EXPECT_EQ(std::count(heard.begin(), heard.end(), "clock close"), 1);
  EXPECT_EQ(std::count(heard.begin(), heard.end(), "calendar close"), 1);
  EXPECT_EQ(WindowRect(Program.hMainWnd).left, 1024 - 90 - 10);
  EXPECT_EQ(WindowRect(Program.hMainWnd).top, 10 + 220);
  for (const WindowHandle window : {Clock.hClockWnd, Calendar.hCalenWnd}) {
    if (WindowIsOpen(window)) WindowDestroy(window);
  }
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
    SendClose(Program.hMainWnd);
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
  SendClose(Program.hMainWnd);
  EXPECT_TRUE(QuitWasAsked());
  EXPECT_TRUE(WindowIsOpen(Program.hMainWnd)) << "the window itself is never destroyed";
  EXPECT_FALSE(TimerIsRunning(Program.hMainWnd, kTickTimer));
  EXPECT_EQ(WorkBlocks.CastBlock, nullptr);
  EXPECT_EQ(WorkBlocks.ScopeBlock, nullptr);
  const LiveObjects after = DiagnosticsLive();
  EXPECT_EQ(after.brushes, before.brushes);
  EXPECT_EQ(after.pens, before.pens);
  EXPECT_EQ(after.blocks, before.blocks);
  EXPECT_EQ(after.timers, before.timers);
}

TEST_F(ShutdownTest, ClosingWithFeatureWindowsOpenLeavesNoSavedState) {
  StartProgram();
  Mail.hMailNoticeWnd = OpenListener();
  const Words before = FolderNames("C:\\mirrell");
  SendClose(Program.hMainWnd);
  EXPECT_TRUE(QuitWasAsked());
  EXPECT_EQ(FolderNames("C:\\mirrell"), before);
  EXPECT_EQ(TakeHeard(), Words{}) << "feature windows end with the process, unasked";
  EXPECT_TRUE(WindowIsOpen(Mail.hMailNoticeWnd));
  WindowDestroy(Mail.hMailNoticeWnd);
}

// Every file of the program folder with its content.
std::map<std::string, std::string> ProgramFiles() {
  std::map<std::string, std::string> files;
  for (const std::string& name : FolderNames("C:\\mirrell")) files[name] = FileBytes("C:\\mirrell\\" + name);
  return files;
}

// A dialog, and how a user changes something in it.
struct Touched {
  std::uint32_t command;
  void (*touch)();
};
constexpr Touched kTouched[] = {
    {2283, [] { Press(TopDialog(), 2292); }},
    {2281, [] { ChooseRow(TopDialog(), 100, 1); }},
    {2282, [] { ChooseRow(TopDialog(), 101, 2); }},
    {1901, [] { Type(TopDialog(), 103, "comment"); }},
};

TEST_F(ShutdownTest, ClosingWithATouchedDialogOpenLeavesTheFilesAsTheyWere) {
  for (const Touched& touched : kTouched) {
    SetFactorySettings();
    ASSERT_EQ(CharaFileWrite(), 0);
    CalenStartDefaults();
    ASSERT_EQ(CalenFileWrite(), 0);
    ASSERT_EQ(SysFileWrite(), 0);
    StartProgram();
    const auto before = ProgramFiles();
    bool open = false;
    Then([&] {
      open = Dialogs.hMenuDlg != nullptr;
      touched.touch();
      EXPECT_EQ(ProgramFiles(), before) << "nothing is confirmed yet";
      SendClose(Program.hMainWnd);
    });
    SendCommand(Program.hMainWnd, touched.command);
    EXPECT_TRUE(open) << touched.command;
    EXPECT_TRUE(QuitWasAsked());
    EXPECT_EQ(ProgramFiles(), before) << touched.command;
    OptionPreviewsFree();
    TearDown();
    SetUp();
  }
}

class ProcessEntryTest : public ProgramTest {};

TEST_F(ProcessEntryTest, ReturnsTheQuitCode) {
  Then([] { SendClose(Program.hMainWnd); });
  EXPECT_EQ(ProcessEntry("", 1), 0);
}

TEST_F(ProcessEntryTest, TheWindowIsMade120By160AndShownInTheModeOfTheStart) {
  Rect made{};
  Overhear([&made](const Event& event) {
    if (event.kind == EventKind::Init) made = WindowRect(event.window);
  });
  LeaveNextLoop();
  ProcessEntry("", 0);
  EXPECT_EQ(made.left, 500);
  EXPECT_EQ(made.top, 300);
  EXPECT_EQ(RectWidth(made), 120);
  EXPECT_EQ(RectHeight(made), 160);
  EXPECT_FALSE(IsVisible(Program.hMainWnd));
  EXPECT_EQ(WindowText(Program.hMainWnd), "ミルレール");
  SendClose(Program.hMainWnd);
}

TEST_F(ProcessEntryTest, TheCommandLineWaitsForTheFirstTickCutTo599Bytes) {
  const std::string line(700, 'a');
  StartProgram(line.c_str());
  EXPECT_EQ(ProgramLine.PendingCommandLine, line.substr(0, 599));
}

// What the first start left in memory is not there for a second one.
TEST_F(ProcessEntryTest, ASecondStartInTheSameProcessIsLikeTheFirst) {
  StartProgram();
  Panel.MenuReopenGuard = 7;
  Calendar.CalenPageSize = 2;
  Calendar.CalenShow = 1;
  Clock.ClockX = 5;
  Mail.MailMinuteCount = 4;
  Character.StageX = 3;
  Motion.BoredHold = 9;
  OpnHistory.fileCount = 3;
  SclTable.AutoScrollDelay = 2;
  Layout.LayoutChange = 7;
  SendClose(Program.hMainWnd);
  MainWindowDrop();
  StartProgram();
  EXPECT_FALSE(Program.Quitting);
  EXPECT_EQ(Panel.MenuReopenGuard, 0);
  EXPECT_EQ(Calendar.CalenPageSize, 0);
  EXPECT_EQ(Calendar.CalenShow, 0);
  EXPECT_EQ(Clock.ClockX, 0);
  EXPECT_EQ(Mail.MailMinuteCount, 0);
  EXPECT_EQ(Character.StageX, 500);
  EXPECT_EQ(Motion.BoredHold, 0);
  EXPECT_EQ(OpnHistory.fileCount, 0);
  EXPECT_EQ(SclTable.AutoScrollDelay, 0);
  EXPECT_EQ(Layout.LayoutChange, 0);
  EXPECT_TRUE(TimerIsRunning(Program.hMainWnd, kTickTimer));
  SendClose(Program.hMainWnd);
}

TEST_F(ProcessEntryTest, NoWindowGivesZero) {
  FaultArm(FaultKind::Window, 1);
  EXPECT_EQ(ProcessEntry("", 1), 0);
}

}  // namespace
