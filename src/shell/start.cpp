#include "shell/start.h"

#include "character/alarm_images.h"
#include "character/character_file.h"
#include "character/stage.h"
#include "clock_calendar/calendar.h"
#include "clock_calendar/clock.h"
#include "clock_calendar/clock_calendar_tick.h"
#include "filetools/desktop_tidy.h"
#include "mail_music/mail.h"
#include "platform/file.h"
#include "platform/memory.h"
#include "platform/screen.h"
#include "platform/time.h"
#include "platform/window.h"
#include "scenario/world_list.h"
#include "schedule/application_list.h"
#include "schedule/schedule_run.h"
#include "shell/boxes.h"
#include "shell/diagnostic_numbers.h"
#include "shell/file_dialog_defaults.h"
#include "shell/file_watch.h"
#include "shell/random.h"
#include "shell/settings.h"
#include "shell/shell.h"
#include "shell/text.h"
#include "shell/text_figures.h"
#include "shell/tick_timer.h"

namespace {

void FoldersTake() {
  FolderGetCurrent(RootFolder, sizeof RootFolder);
  FolderGetCurrent(PickFolder, sizeof PickFolder);
  for (auto& folder : PickerStartFolders) TextCopy(folder, sizeof folder, PickFolder);
}

void TimerBegin() {
  if (TickTimerStart()) return;
  // kept: the program's name is the text and the error the caption, as in all boxes of
  // this kind here.
  BoxTell(hMainWnd, "ミルレール", "タイマー設定できません");
}

void ScreenFiguresTake() {
  SizeButtonWidth = ScreenMetric(Metric::SizeButtonWidth);
  MenuBarHeight = ScreenMetric(Metric::MenuHeight);
  FrameWidth = ScreenMetric(Metric::FrameWidth);
  FrameHeight = ScreenMetric(Metric::FrameHeight);
}

}  // namespace

void StartSequence(WindowHandle window) {
  hMainWnd = window;
  Quitting = false;
  DiagnosticsShowAll();
  FileDialogDefaultsSet();
  TextFiguresTake(window);
  DrawingObjectsCreate();
  SclTablesClear();
  CastBlock = static_cast<unsigned char*>(MemoryAllocate(kCastBlockSize));
  ScopeBlock = static_cast<unsigned char*>(MemoryAllocate(kScopeBlockSize));
  RandomSeed(1);
  RandomSeed(static_cast<std::uint32_t>(TimeSeconds()));
  FoldersTake();
  TimerBegin();

  SclDefaults();
  CalenStartDefaults();
  TidyReset();
  SetDateDefaults();
  StageWidth = 300;
  StageHeight = 200;
  ScreenFiguresTake();

  const int settings = SysFileRead();
  ApliListOpen();
  WorldListRead();
  CalenFileRead();
  FileWatchStampTake(WatchedFile::Calendar);
  CharaFileRead();
  FileWatchStampTake(WatchedFile::Character);
  CharaTakeCurrent(CharaIndex);
  ClockAlarmFileLoad();
  FileWatchStampTake(WatchedFile::ClockAlarm);
  ClockAlarmCheckReset();
  if (CharaLoadStage() >= 0) StageShapeAndPlace();
  ClockActivate();
  ApliListRead();
  SclExecutionLoad();
  MailSettingsRead();
  if (settings != 0) return;

  AlarmCharaLoad();
  ClockReactivate();
  if (ClockShow) SendCommand(hMainWnd, 2254);
  if (CalenShow && !hCalenWnd) CalenWindowOpen();
}
