#include "shell/states.h"

#include "character/alarm_images.h"
#include "character/character.h"
#include "character/character_tables.h"
#include "character/frames.h"
#include "character/motion.h"
#include "character/notice_window.h"
#include "character/options.h"
#include "character/performance_figures.h"
#include "character/stage.h"
#include "character/walk.h"
#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/calendar/calendar_edit.h"
#include "clock_calendar/calendar/calendar_fonts.h"
#include "clock_calendar/calendar/calendar_picture.h"
#include "clock_calendar/calendar/calendar_window.h"
#include "clock_calendar/clock/clock.h"
#include "clock_calendar/clock/clock_notice.h"
#include "clock_calendar/clock/clock_pictures.h"
#include "clock_calendar/clock/clock_preview.h"
#include "clock_calendar/clock/performance.h"
#include "clock_calendar/clock/watch_adust.h"
#include "clock_calendar/clock/watch_list.h"
#include "filetools/back_up/back_up.h"
#include "filetools/divide/file_divide.h"
#include "filetools/open/group_open.h"
#include "filetools/open/open_choice.h"
#include "filetools/open/open_groups.h"
#include "filetools/open/open_history.h"
#include "filetools/open/open_programs.h"
#include "filetools/open/open_record.h"
#include "filetools/open/open_search.h"
#include "filetools/open/open_selection.h"
#include "filetools/scope/folder_scope.h"
#include "filetools/stepped_work.h"
#include "filetools/tidy/desktop_tidy.h"
#include "mail_music/mail/mail.h"
#include "mail_music/mail/mail_setting.h"
#include "mail_music/mail/mail_talk.h"
#include "mail_music/music/music.h"
#include "scenario/cast/cast_backdrop.h"
#include "scenario/cast/cast_edit.h"
#include "scenario/cast/cast_member.h"
#include "scenario/characters/chara_regi.h"
#include "scenario/logic/snry_sheet.h"
#include "scenario/looks/snry_looks.h"
#include "scenario/storage/scenario.h"
#include "scenario/storage/scenario_dialogs.h"
#include "scenario/trace/trace_dialogs.h"
#include "schedule/applications/application_list.h"
#include "schedule/execution/scl_alarm.h"
#include "schedule/execution/scl_notice.h"
#include "schedule/model/schedule.h"
#include "schedule/plan/plan.h"
#include "schedule/rates/scl_map.h"
#include "schedule/table/line_chart.h"
#include "schedule/table/row_selection.h"
#include "schedule/table/schedule_dialogs.h"
#include "schedule/table/table_scroll.h"
#include "services/child_controls.h"
#include "services/data_file.h"
#include "services/dialog_family.h"
#include "services/drawing_objects.h"
#include "services/file_picker.h"
#include "services/five_ticks.h"
#include "services/folder_pick.h"
#include "services/path.h"
#include "services/program.h"
#include "services/random.h"
#include "services/screen_figures.h"
#include "services/state.h"
#include "services/today.h"
#include "services/work_blocks.h"
#include "shell/command_line.h"
#include "shell/file_dialog_defaults.h"
#include "shell/file_watch.h"
#include "shell/layout.h"
#include "shell/main_client.h"
#include "shell/old_data.h"
#include "shell/panel.h"
#include "shell/popups.h"
#include "shell/settings.h"
#include "shell/tick.h"
#include "shell/tick_timer.h"
#include "world/sef_file.h"
#include "world/wef_file.h"
#include "world/world_list.h"
#include "world/world_pictures.h"

namespace {

template <typename... State>
void ResetAll(State&... states) {
  (StateReset(states), ...);
}

void ServicesReset() {
  ScopeBlockFree();
  CastBlockFree();
  WorldPicturesFree();
  DrawingObjectsDelete();
  DialogsReset();
  ResetAll(WorkBlocks, Drawing, Children, FileResult, FiveTicks, PathParts, Picker, Program, Screen, Today,
           World);
  ResetAll(Random, FolderPick, Sef, Wef, WorldPictures);
}

void CharacterReset() {
  for (int row = 0; row < kFrameRowCount; ++row) FramesFree(row);
  for (AlarmRow& row : AlarmImages.AlarmRows) AlarmRowFree(&row);
  OptionPreviewsFree();
  AlarmCheckFree();
  PerformanceFiguresFree();
  ResetAll(Frames, AlarmImages, AlarmCheck, AlarmOption, CharaDetail, CharaOption, MotionPreview,
           PerformanceFigures, Character, CharaTables, Motion, NoticePlace, Stage, Walk);
}

void ClockCalendarReset() {
  PerformanceEnd();
  ClockPreviewFree();
  CalenFontDelete();
  CalenStickersFree();
  ClockPicturesFree();
  ResetAll(Clock, ClockHands, ClockNotice, ClockPictures, ClockPreview, PerformanceTable, Timed, WatchAdust,
           WatchList);
  ResetAll(Performance, Calendar, CalendarEdit, CalendarFonts, CalendarPictures);
}

void ScheduleReset() {
  ApliListFree();
  SclMapPicturesFree();
  ResetAll(Applications, LineChart, Notices, Plan, RowSelection, Schedule, SclAlarm, SclMap, SclTable);
}

void FileToolsReset() {
  BackUpReset();
  FileDivideReset();
  ScopeReset();
  SteppedReset();
  ResetAll(GroupRun, OpnGroups, OpnHistory, OpnProgList, OpnRecord, OpnSearchResult, OpnSelection,
           OpnSelectionSave, OpnWork, Tidy);
}

void MailMusicReset() {
  MailSocketsClose();
  ResetAll(Mail, MailDialog, MailLive, MailSetting, MailTalks);
  ResetAll(BgmTable, Music);
}

void ScenarioReset() {
  CastBackdropFree();
  ResetAll(CastBackdrop, CastEdit, CastMember, CharaRegi);
  ResetAll(Scenario, SnryList, SnryLooks, SnryMain, SnryScene, SnryDialogs, SnrySheet, SnryTouched,
           SnryTrace);
}

void ShellReset() {
  OldDataFree();
  ResetAll(FileDialogDefaults, Factory, Layout, MainClient, OldFormat, Panel, Popups, ProgramLine, TickCounts,
           TickTimer, Watch);
}

}  // namespace

void StatesReset() {
  ShellReset();
  ScenarioReset();
  MailMusicReset();
  FileToolsReset();
  ScheduleReset();
  ClockCalendarReset();
  CharacterReset();
  ServicesReset();
}
