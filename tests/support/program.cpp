#include "tests/support/program.h"

#include <cstring>
#include <map>

#include "character/character.h"
#include "character/character_tables.h"
#include "character/frames.h"
#include "character/motion.h"
#include "character/stage.h"
#include "clock_calendar/calendar.h"
#include "clock_calendar/clock.h"
#include "mail_music/mail.h"
#include "platform/window.h"
#include "resources/ids.h"
#include "schedule/application_list.h"
#include "schedule/table_scroll.h"
#include "shell/data_file.h"
#include "shell/entry.h"
#include "shell/main_window.h"
#include "shell/shell.h"
#include "shell/shutdown.h"
#include "shell/text.h"
#include "shell/tick.h"
#include "tests/support/test_dialogs.h"

namespace {

std::vector<std::string> heard;
std::map<WindowHandle, std::string> names;  // of the listeners that have one, with a blank
bool started = false;
bool everything = false;   // main window and programs are listened to
std::size_t programs = 0;  // that were heard of

void Hear(const std::string& text) {
  for (; everything && programs < ProcessesStarted().size(); ++programs) heard.emplace_back("start");
  heard.push_back(text);
}

bool Listen(const Event& event) {
  const std::string name = names.contains(event.window) ? names[event.window] : "";
  switch (event.kind) {
    case EventKind::Command:
      Hear(name + "command " + std::to_string(event.command));
      break;
    case EventKind::Paint:
      Hear(name + "paint");
      break;
    case EventKind::Close:
      Hear(name + "close");
      break;
    default:
      break;
  }
  return everything && event.kind == EventKind::Close;  // else a dialog is sent 2
}

bool MainListened(const Event& event) {
  if (everything && event.kind == EventKind::Command) Hear("main " + std::to_string(event.command));
  return MainWindowProc(event);
}

template <typename Table>
void Zero(Table& table) {
  std::memset(&table, 0, sizeof table);
}

void ShellReset() {
  for (WindowHandle* handle :
       {&hMainWnd, &hDiskMenu, &hMenuDlg, &hToolDlg, &hSubDlg, &hSnryDlg, &hFilePickDlg, &hBackUpDlg,
        &hSearchDlg, &hClockWnd, &hCalenWnd, &hMailNoticeWnd, &hSclNoticeWnd, &hClockNoticeWnd, &hSclTableWnd,
        &hPlanWnd, &hBgmWnd}) {
    *handle = nullptr;
  }
  for (int* id : {&DlgIdMenu, &DlgIdTool, &DlgIdSub, &DlgIdSnry}) *id = 0;
  for (std::int32_t* counter :
       {&MenuCloseCount, &MenuReopenGuard, &MailTickCount, &MailMinuteCount, &FrameDivider, &AutoScrollDelay,
        &GroupOpenDelay, &FileWatchCount, &MenuPanelState, &MenuHiLine, &FuncNo, &progressMode, &stepCounter,
        &MailNoticeFlag, &MailPhase, &OpeningState, &TickCount, &FileStatus, &MailInterval}) {
    *counter = 0;
  }
  BackUpActive = false;
  Quitting = false;
  MailCheckOn = false;
  PendingCommandLine[0] = '\0';
  CommandLine[0] = '\0';
  TableScrollStop();
  SclTableView = {};
  PlanView = {};
  ApliCount = 0;
  ApliSelected = 0;
  ApliStarted = 0;
}

void CharacterReset() {
  for (std::int32_t* value :
       {&CharaIndex,       &MenuFrame,  &BlinkFrame,  &BoredDelaySel,  &BoredSpeedSel,   &BoredRepeatSel,
        &BlinkSpeedSel,    &StageX,     &StageY,      &MainCharaCount, &AlarmCharaCount, &WalkCharaCount,
        &ClockDesignCount, &CharaFrame, &StageRedraw, &CharaMotion,    &CharaStepCount,  &BlinkCount,
        &BoredSec,         &BoredMin,   &BoredHour,   &BoredLeft,      &BoredHold,       &BoredRepeat}) {
    *value = 0;
  }
  StageX = 500;
  StageY = 300;
  Zero(Bored1Frames);
  Zero(Bored2Frames);
  Zero(AlarmCharaSel);
  Zero(CharaSet);
  for (auto& chara : MainCharas) Zero(chara);
  ClockShow = 0;
  ClockDesign = kClockNone;
  CalenShow = 0;
}

}  // namespace

void ProgramTest::SetUp() {
  DesktopTest::SetUp();
  ShellReset();
  CharacterReset();
  heard.clear();
  names.clear();
  everything = false;
  started = false;
}

void ProgramTest::TearDown() {
  if (started && !QuitWasAsked()) Shutdown();
  for (int row = 0; row < kFrameRowCount; ++row) FramesFree(row);
  DesktopTest::TearDown();
  ShellReset();
}

void ProgramTest::StartProgram(const char* commandLine) {
  char name[100];
  StringLoad(IDR_MAIN, name, sizeof name);
  const MainWindowClass mainClass{name, name, IDI_MAIN, IDI_SMALL, IDR_MAIN, MainListened};
  started = true;
  const WindowHandle window = MainWindowCreate(mainClass, 500, 300, 120, 160);
  ASSERT_NE(window, nullptr);
  WindowShowFirst(window, 1);
  TextCopy(PendingCommandLine, sizeof PendingCommandLine, commandLine);
}

void Ticks(int times) {
  for (int i = 0; i < times; ++i) MainTick();
}

WindowHandle OpenListener(const char* name) {
  HeadlessResourceFile(MIRRELL_TEST_RES_FILE);
  const WindowHandle dialog = DialogOpen(IDD_TestControls, nullptr, Listen);
  HeadlessResourceFile(MIRRELL_RES_FILE);
  heard.clear();
  if (name[0] != '\0') names[dialog] = std::string(name) + " ";
  return dialog;
}

void ListenToEverything() {
  everything = true;
  programs = ProcessesStarted().size();
}

std::vector<std::string> TakeHeard() {
  std::vector<std::string> taken;
  taken.swap(heard);
  return taken;
}
