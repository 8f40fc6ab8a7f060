#include "tests/support/program.h"

#include <cstring>
#include <map>

#include "character/character.h"
#include "character/character_tables.h"
#include "character/frames.h"
#include "character/motion.h"
#include "character/stage.h"
#include "character/walk.h"
#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/clock/clock.h"
#include "clock_calendar/clock/clock_notice.h"
#include "filetools/back_up/back_up.h"
#include "filetools/open/open_state.h"
#include "filetools/stepped_work.h"
#include "mail_music/mail/mail.h"
#include "mail_music/music/music.h"
#include "platform/window.h"
#include "resources/program_ids.h"
#include "schedule/applications/application_list.h"
#include "schedule/execution/scl_notice.h"
#include "schedule/table/table_scroll.h"
#include "services/data_file.h"
#include "services/dialog_family.h"
#include "services/file_picker.h"
#include "services/five_ticks.h"
#include "services/program.h"
#include "services/text.h"
#include "shell/command_line.h"
#include "shell/file_watch.h"
#include "shell/main_window.h"
#include "shell/panel.h"
#include "shell/shutdown.h"
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
    case EventKind::Pressed:
      Hear(name + "pressed " + std::to_string(event.id));
      break;
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
       {&Program.hMainWnd, &Panel.hDiskMenu, &Dialogs.hMenuDlg, &Dialogs.hToolDlg, &Dialogs.hSubDlg,
        &Dialogs.hSnryDlg, &Picker.hFilePickDlg, &BackUpRun.hBackUpDlg, &Stepped.hSearchDlg, &Clock.hClockWnd,
        &Calendar.hCalenWnd, &Mail.hMailNoticeWnd, &Notices.hSclNoticeWnd, &ClockNotice.hClockNoticeWnd,
        &SclTable.hSclTableWnd, &SclTable.hPlanWnd, &Music.hBgmWnd}) {
    *handle = nullptr;
  }
  Dialogs = {};
  for (std::int32_t* counter :
       {&Panel.MenuCloseCount, &Panel.MenuReopenGuard, &Mail.MailTickCount, &Mail.MailMinuteCount,
        &FiveTicks.FrameDivider, &SclTable.AutoScrollDelay, &GroupRun.GroupOpenDelay, &Watch.FileWatchCount,
        &Panel.MenuPanelState, &Panel.MenuHiLine, &Panel.FuncNo, &Stepped.progressMode, &Stepped.stepCounter,
        &Mail.MailNoticeFlag, &Mail.MailPhase, &Walk.OpeningState, &TickCounts.TickCount,
        &FileResult.FileStatus, &Mail.MailInterval}) {
    *counter = 0;
  }
  BackUpRun.BackUpActive = false;
  Program.Quitting = false;
  Mail.MailCheckOn = false;
  ProgramLine.PendingCommandLine[0] = '\0';
  ProgramLine.CommandLine[0] = '\0';
  TableScrollStop();
  SclTable.SclTableView = {};
  SclTable.PlanView = {};
  Applications.ApliCount = 0;
  Applications.ApliSelected = 0;
  Applications.ApliStarted = 0;
}

void CharacterReset() {
  for (std::int32_t* value : {&Character.CharaIndex,
                              &Character.MenuFrame,
                              &Character.BlinkFrame,
                              &Character.BoredDelaySel,
                              &Character.BoredSpeedSel,
                              &Character.BoredRepeatSel,
                              &Character.BlinkSpeedSel,
                              &Character.StageX,
                              &Character.StageY,
                              &CharaTables.MainCharaCount,
                              &CharaTables.AlarmCharaCount,
                              &CharaTables.WalkCharaCount,
                              &CharaTables.ClockDesignCount,
                              &Stage.CharaFrame,
                              &Stage.StageRedraw,
                              &Motion.CharaMotion,
                              &Motion.CharaStepCount,
                              &Motion.BlinkCount,
                              &Motion.BoredSec,
                              &Motion.BoredMin,
                              &Motion.BoredHour,
                              &Motion.BoredLeft,
                              &Motion.BoredHold,
                              &Motion.BoredRepeat}) {
    *value = 0;
  }
  Character.StageX = 500;
  Character.StageY = 300;
  Zero(Character.Bored1Frames);
  Zero(Character.Bored2Frames);
  Zero(Character.AlarmCharaSel);
  Zero(Character.CharaSet);
  for (auto& chara : CharaTables.MainCharas) Zero(chara);
  Clock.ClockShow = 0;
  Clock.ClockDesign = kClockNone;
  Calendar.CalenShow = 0;
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
  TextCopy(ProgramLine.PendingCommandLine, sizeof ProgramLine.PendingCommandLine, commandLine);
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
