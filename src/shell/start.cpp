#include "shell/start.h"

#include "character/alarm_images.h"
#include "character/chara_select.h"
#include "character/character.h"
#include "character/character_file.h"
#include "character/stage.h"
#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/calendar/calendar_window.h"
#include "clock_calendar/clock/clock.h"
#include "clock_calendar/clock/clock_window.h"
#include "filetools/tidy/desktop_tidy.h"
#include "mail_music/mail/mail.h"
#include "platform/file.h"
#include "platform/time.h"
#include "platform/window.h"
#include "scenario/storage/snry_reset.h"
#include "schedule/applications/application_list.h"
#include "schedule/execution/schedule_run.h"
#include "schedule/model/schedule.h"
#include "services/boxes.h"
#include "services/commands.h"
#include "services/drawing_objects.h"
#include "services/file_picker.h"
#include "services/program.h"
#include "services/random.h"
#include "services/screen_figures.h"
#include "services/text.h"
#include "services/work_blocks.h"
#include "shell/diagnostic_numbers.h"
#include "shell/file_dialog_defaults.h"
#include "shell/file_watch.h"
#include "shell/settings.h"
#include "shell/states.h"
#include "shell/tick_timer.h"

namespace {

bool FoldersTake() {
  if (FolderGetCurrent(Program.RootFolder, sizeof Program.RootFolder) == 0) return false;
  FolderGetCurrent(Picker.PickFolder, sizeof Picker.PickFolder);
  for (auto& folder : Picker.PickerStartFolders) TextCopy(folder, sizeof folder, Picker.PickFolder);
  return true;
}

// settled: without a name for its folder the program would find none of its files and
// put new ones elsewhere: it says so and ends.
void FolderRefuse() {
  BoxTell(Program.hMainWnd,
          "プログラムのフォルダーの名前を読めません。\r\n別の名前のフォルダーに移してください。",
          "ミルレール");
  SendClose(Program.hMainWnd);
}

void TimerBegin() {
  if (TickTimerStart()) return;
  // kept: the program's name is the text and the error the caption, as in all boxes of
  // this kind here.
  BoxTell(Program.hMainWnd, "ミルレール", "タイマー設定できません");
}

}  // namespace

void StartSequence(WindowHandle window) {
  if (Program.Started) StatesReset();
  Program.Started = true;
  Program.hMainWnd = window;
  DiagnosticsShowAll();
  FileDialogDefaultsSet();
  TextFiguresTake(window);
  DrawingObjectsCreate();
  WorkBlocksAllocate();
  RandomSeed(1);
  RandomSeed(static_cast<std::uint32_t>(TimeSeconds()));
  if (!FoldersTake()) return FolderRefuse();
  TimerBegin();

  SclDefaults();
  CalenStartDefaults();
  TidyReset();
  SetDateDefaults();
  StageSizeBegin();
  FrameFiguresTake();

  const int settings = SysFileRead();
  ApliListOpen();
  SnryWorldLoad();
  CalenFileRead();
  FileWatchStampTake(WatchedFile::CalendarFile);
  CharaFileRead();
  FileWatchStampTake(WatchedFile::CharacterFile);
  CharaTakeCurrent(Character.CharaIndex);
  ClockAlarmFileLoad();
  FileWatchStampTake(WatchedFile::ClockAlarmFile);
  ClockAlarmCheckReset();
  if (CharaLoadStage() >= 0) StageShapeAndPlace();
  ClockActivate();
  ApliListRead();
  SclExecutionLoad();
  MailSettingsRead();
  // kept: without settings that can be read the program runs on with no alarm images, no
  // clock and no calendar.
  if (settings != 0) return;

  AlarmCharaLoad();
  ClockReactivate();
  if (Clock.ClockShow) CommandSend(Command::ClockOpen);
  if (Calendar.CalenShow && !Calendar.hCalenWnd) CalenWindowOpen();
}
