#include "shell/tick.h"

#include <algorithm>
#include <limits>

#include "character/motion.h"
#include "character/notices.h"
#include "character/options.h"
#include "character/walk.h"
#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/clock/clock.h"
#include "clock_calendar/clock/clock_notice.h"
#include "clock_calendar/clock_calendar_tick.h"
#include "filetools/back_up/back_up.h"
#include "filetools/open/group_open.h"
#include "filetools/open/open_groups.h"
#include "filetools/stepped_work.h"
#include "mail_music/mail/mail.h"
#include "platform/screen.h"
#include "platform/time.h"
#include "platform/window.h"
#include "schedule/applications/application_list.h"
#include "schedule/applications/hand_off.h"
#include "schedule/execution/schedule_run.h"
#include "schedule/execution/scl_notice.h"
#include "schedule/table/table_scroll.h"
#include "services/commands.h"
#include "services/dialog_family.h"
#include "services/dialog_numbers.h"
#include "services/five_ticks.h"
#include "services/program.h"
#include "services/today.h"
#include "shell/entry.h"
#include "shell/file_watch.h"
#include "shell/panel.h"

TickCountsState TickCounts;

namespace {

constexpr std::int32_t kMailUnitTicks = 6000;
constexpr std::int32_t kFrameDividerReload = 5;
constexpr std::int32_t kFileWatchTicks = 201;
constexpr std::uint32_t kPanelCloseCommand = 2;

void CommandLineStep() {
  if (Entry.PendingCommandLine[0] == '\0') return;
  CommandLineTake();
  CommandSend(Command::FirstRun);
}

void BackUpStepTell() {
  if (BackUpRun.BackUpActive) CommandSendTo(BackUpRun.hBackUpDlg, Command::BackUpStep);
}

void SteppedWorkTell() {
  if (Stepped.progressMode >= 1 && Stepped.progressMode <= 4)
    CommandSendTo(Stepped.hSearchDlg, Command::WorkStep);
}

void HandOffStep() {
  if (SclHandOffCheck()) CommandSend(Command::ApplicationHandOff);
}

void ReopenGuardStep() {
  if (Panel.MenuReopenGuard > 0) --Panel.MenuReopenGuard;
}

void PanelClose() {
  Panel.MenuPanelState = 0;
  SendCommand(Panel.hDiskMenu, kPanelCloseCommand);
}

// The pointer has not been inside the panel yet: it closes by count.
void PanelCountStep() {
  if (Panel.MenuPanelState != kPanelTop || Panel.MenuCloseCount == kMenuInside) return;
  if (Panel.MenuCloseCount != 0) --Panel.MenuCloseCount;
  if (Panel.MenuCloseCount == 0) PanelClose();
}

// The pointer has been inside: it closes as soon as the pointer is outside.
void PanelPointerStep() {
  if (Panel.MenuPanelState != kPanelTop || Panel.MenuCloseCount != kMenuInside) return;
  const Point at = PointerPosition();
  if (at.x < Panel.MenuPanelRect.left || at.x >= Panel.MenuPanelRect.right ||
      at.y < Panel.MenuPanelRect.top || at.y >= Panel.MenuPanelRect.bottom) {
    PanelClose();
  }
}

void MailStep() {
  if (!Mail.MailCheckOn) return;
  if (++Mail.MailTickCount >= kMailUnitTicks) {
    Mail.MailTickCount = 0;
    if (Mail.MailMinuteCount != 0) --Mail.MailMinuteCount;
  }
  if (Mail.MailMinuteCount == 0) {
    Mail.MailMinuteCount = Mail.MailInterval;
    CommandSend(Command::MailCheck);
  }
  if (Mail.MailNoticeFlag == 1) MailNoticeStart();
}

void ClockStep() {
  const bool adjusting = Dialogs.DlgIdTool == ToolDialog::WatchAdustDlg && Dialogs.hToolDlg;
  if (!adjusting && !Clock.hClockWnd && !SclIsRunning() && !Calendar.hCalenWnd) return;
  TimeGetLocal(&Today.SharedTime);
  if (adjusting) WatchAdustTimeDraw();
  if (Clock.hClockWnd && ClockTickCheck(Today.SharedTime.hour, Today.SharedTime.minute) != 0)
    SendPaint(Clock.hClockWnd);
  if (SclIsRunning() && SclDueCheck()) CommandSend(Command::ScheduleNotice);
  if (Calendar.hCalenWnd || ClockNotice.hClockNoticeWnd) {
    if (CalenTickCheck() != 0) SendPaint(Calendar.hCalenWnd);
    if (ClockAlarmCheck(Today.SharedTime.hour, Today.SharedTime.minute) != 0)
      CommandSend(Command::ClockNoticeOpen);
    if (ClockNotice.hClockNoticeWnd && ClockNoticeWaitIsOver())
      CommandSendTo(ClockNotice.hClockNoticeWnd, Command::NextStep);
    if (Calendar.hCalenWnd) CalenTickerTick();
  }
}

void MotionStep() {
  if (CharaMotionTick() != 0) CommandSend(Command::StageRedraw);
}

void PreviewStep() {
  if (MotionPreviewTick() != 0) SendPaint(Dialogs.hSubDlg);
}

// Off at 0, until a feature that needs the five-tick step sets it.
void FrameDividerStep() {
  if (FiveTicks.FrameDivider <= 0) return;
  if (--FiveTicks.FrameDivider != 0) return;
  FiveTicks.FrameDivider = kFrameDividerReload;
  MailNoticeFrameStep();
  SclNoticeFrameStep();
  AlarmCheckFrameStep();
}

void FileWatchStep() {
  if (++TickCounts.FileWatchCount < kFileWatchTicks) return;
  TickCounts.FileWatchCount = 0;
  FileWatch();
}

// --- What each step waits for: in how many ticks it may have something to do.

constexpr int kNever = std::numeric_limits<int>::max();

int NextIf(bool active) {
  return active ? 1 : kNever;
}

int PanelDue() {
  return NextIf(Panel.MenuPanelState == kPanelTop);
}

int MailDue() {
  if (!Mail.MailCheckOn) return kNever;
  if (Mail.MailMinuteCount == 0 || Mail.MailNoticeFlag == 1) return 1;
  return kMailUnitTicks - Mail.MailTickCount;
}

int ClockDue() {
  return NextIf(Dialogs.hToolDlg || Clock.hClockWnd || Calendar.hCalenWnd || SclIsRunning());
}

// The divider goes on running when the last notice has closed, for nobody.
int FrameDividerDue() {
  return NextIf(FiveTicks.FrameDivider > 0 &&
                (Mail.hMailNoticeWnd || Notices.hSclNoticeWnd || Dialogs.hToolDlg));
}

struct TickStep {
  void (*run)();
  int (*due)();
};

// The order is part of the design: alarms and clock checks use the time that the
// clock's step reads, and the character moves after the alarms, so that a menu or
// an alarm that began in this tick draws first.
constexpr TickStep kSteps[] = {
    {CommandLineStep, [] { return NextIf(Entry.PendingCommandLine[0] != '\0'); }},
    {BackUpStepTell, [] { return NextIf(BackUpRun.BackUpActive); }},
    {SteppedWorkTell, [] { return NextIf(Stepped.progressMode != 0); }},
    {HandOffStep, [] { return NextIf(Applications.ApliStarted != 0); }},
    {ReopenGuardStep, [] { return NextIf(Panel.MenuReopenGuard > 0); }},
    {PanelCountStep, PanelDue},
    {PanelPointerStep, PanelDue},
    {MailStep, MailDue},
    {OpnGroupTick, [] { return NextIf(OpnPendingGroup != nullptr); }},
    {WalkTickAll, [] { return NextIf(Walk.WalkActive); }},
    {WalkEndTickAll, [] { return NextIf(Walk.WalkEndActive); }},
    {ClockPreviewStep, [] { return NextIf(Dialogs.hToolDlg != nullptr); }},
    {ClockStep, ClockDue},
    {MotionStep, CharaMotionDue},
    {PreviewStep, [] { return NextIf(Dialogs.hSubDlg != nullptr); }},
    {FrameDividerStep, FrameDividerDue},
    {TableScrollTick, [] { return NextIf(SclTable.hSclTableWnd || SclTable.hPlanWnd); }},
    {FileWatchStep, [] { return kFileWatchTicks - TickCounts.FileWatchCount; }},
};

}  // namespace

void MainTick() {
  ++TickCounts.TickCount;
  for (const TickStep& step : kSteps) {
    if (Program.Quitting) return;
    step.run();
  }
}

int TicksUntilDue() {
  int first = kNever;
  for (const TickStep& step : kSteps) first = std::min(first, step.due());
  return std::max(first, 1);
}
