#include "shell/file_watch.h"

#include <algorithm>
#include <cstdint>
#include <iterator>

#include "character/alarm_images.h"
#include "character/chara_select.h"
#include "character/character.h"
#include "character/character_chosen.h"
#include "character/character_file.h"
#include "character/options.h"
#include "character/stage.h"
#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/calendar/calendar_window.h"
#include "clock_calendar/clock/clock.h"
#include "platform/dialog.h"
#include "platform/file.h"
#include "platform/window.h"
#include "schedule/applications/application_list.h"
#include "services/commands.h"
#include "services/dialog_family.h"
#include "services/dialog_numbers.h"
#include "services/program.h"
#include "services/settings_save.h"
#include "shell/settings.h"
#include "shell/shell_commands.h"

FileWatchState Watch;

namespace {

constexpr const char* kNames[] = {"\\mirrell_calen_file.dcd", "\\mirrell_chara_file.dcx",
                                  "\\mirrell_ClcAlmPerFile.clc"};
constexpr std::int32_t kWatchTicks = 201;

bool StampRead(WatchedFile file, std::uint64_t* stamp) {
  char path[kRootSize + 64];
  RootPath(path, sizeof path, kNames[static_cast<int>(file)]);
  return FileLastWrite(path, stamp);
}

// True for a file that is there with another stamp than the stored one; that stamp
// is stored. It is the one from before the file is read, so that what is written
// meanwhile is a change of its own.
bool ChangeTake(WatchedFile file) {
  std::uint64_t& stored = Watch.stamps[static_cast<int>(file)];
  std::uint64_t stamp = stored;
  StampRead(file, &stamp);
  if (stamp == stored) return false;
  stored = stamp;
  return true;
}

void CalendarSnapshotTake() {
  Watch.calendarBefore = CalenSelectedDefinition();
  std::copy_n(Calendar.CalenSheets[CalenSelected()], kMonthsOfYear, Watch.monthsBefore);
}

bool CalendarSnapshotDiffers() {
  return Watch.calendarBefore != CalenSelectedDefinition() ||
         !std::equal(std::begin(Watch.monthsBefore), std::end(Watch.monthsBefore),
                     Calendar.CalenSheets[CalenSelected()]);
}

void CalendarLook() {
  // The dialogs that edit the calendars hold their changes in memory.
  if (Dialogs.DlgIdMenu == MenuDialog::SelWatchDlg || Dialogs.DlgIdMenu == MenuDialog::SelCalenderDlg ||
      !ChangeTake(WatchedFile::CalendarFile))
    return;
  CalendarSnapshotTake();
  CalenFileRead();
  CalenSheetChangesTake(Watch.monthsBefore);
  Watch.calendarReload = true;
  Watch.clockRestart = true;
  Watch.calendarTell = CalendarSnapshotDiffers();
}

void CalendarAnswer() {
  if (!Watch.calendarReload) return;
  Watch.calendarReload = false;
  CommandSend(Command::CalendarYears);
  CalenWindowRenew();
  if (Watch.calendarTell) {
    Watch.calendarTell = false;
    CommandSend(Command::CalendarChanged);
  }
}

void CharacterLook() {
  // The dialogs that choose characters work on the tables.
  if (Dialogs.DlgIdMenu == MenuDialog::OptionSelDlg1_2 || Dialogs.DlgIdMenu == MenuDialog::OptionSelDlg2 ||
      !ChangeTake(WatchedFile::CharacterFile))
    return;
  CharaFileRead();
  Watch.alarmReload = true;
  Watch.characterReload = true;
  Watch.clockRestart = true;
}

void AlarmAnswer() {
  if (!Watch.alarmReload) return;
  Watch.alarmReload = false;
  AlarmCharaLoad();
  SysFileWrite();
}

void CharacterAnswer() {
  if (!Watch.characterReload) return;
  Watch.characterReload = false;
  OptionPreviewsFree();
  if (CharaSelect(Character.CharaIndex)) CharacterChosen();
  StageReloadWanted();
  CommandSend(Command::StageRedraw);
}

void ClockAnswer() {
  if (!Watch.clockRestart) return;
  Watch.clockRestart = false;
  CommandSend(Command::ClockOpen);
}

void ClockAlarmLook() {
  if (ChangeTake(WatchedFile::ClockAlarmFile)) ClockAlarmFileRead();
}

}  // namespace

void FileWatchStampTake(WatchedFile file) {
  StampRead(file, &Watch.stamps[static_cast<int>(file)]);
}

// settled: a calendar file that the program has saved itself is no change of a sibling's, and
// is not read again.
void CalendarFileSaved() {
  FileWatchStampTake(WatchedFile::CalendarFile);
}

void FileWatch() {
  constexpr void (*kSteps[])() = {CalendarLook,    CalendarAnswer, CharacterLook, AlarmAnswer,
                                  CharacterAnswer, ClockAnswer,    ClockAlarmLook};
  for (const auto step : kSteps) {
    if (Program.Quitting) return;  // a box of an answer may have been up at the end of the program
    step();
  }
}

void FileWatchTick() {
  if (++Watch.FileWatchCount < kWatchTicks) return;
  Watch.FileWatchCount = 0;
  FileWatch();
}

int FileWatchDue() {
  return kWatchTicks - Watch.FileWatchCount;
}

void CommandCalendarChanged(Command) {
  // A second box would open over the first from the tick.
  if (Watch.telling || !ApliListHasSelected()) return;
  Watch.telling = true;
  MessageBoxRun(Program.hMainWnd,
                ApliSelectedIsRunning()
                    ? "予定表の編集データセーブ後に予定表を閉じて再起動させてください"
                    : "予定表でカレンダー変更を有効にするには、予定表を起動しセーブする必要があります",
                "カレンダーが変更されました(ミルレール)", BoxButtons::Ok, BoxIcon::Exclamation);
  Watch.telling = false;
}
