#include "shell/tick.h"

#include <algorithm>
#include <limits>

#include "character/clock_notice.h"
#include "character/motion.h"
#include "character/notices.h"
#include "character/options.h"
#include "character/scl_notice.h"
#include "character/walk.h"
#include "clock_calendar/calendar.h"
#include "clock_calendar/clock.h"
#include "clock_calendar/clock_calendar_tick.h"
#include "filetools/group_open.h"
#include "filetools/open_groups.h"
#include "mail_music/mail.h"
#include "platform/screen.h"
#include "platform/time.h"
#include "platform/window.h"
#include "schedule/application_list.h"
#include "schedule/hand_off.h"
#include "schedule/schedule_run.h"
#include "schedule/table_scroll.h"
#include "shell/entry.h"
#include "shell/file_watch.h"
#include "shell/panel.h"
#include "shell/shared_time.h"
#include "shell/shell.h"

std::int32_t TickCount;

namespace {

constexpr std::int32_t kMailUnitTicks = 6000;
constexpr std::int32_t kFrameDividerReload = 5;
constexpr std::int32_t kFileWatchTicks = 201;
constexpr std::uint32_t kPanelCloseCommand = 2;

void CommandLineStep() {
  if (PendingCommandLine[0] == '\0') return;
  CommandLineTake();
  SendCommand(hMainWnd, 2373);
}

void BackUpStepTell() {
  if (BackUpActive) SendCommand(hBackUpDlg, 2375);
}

void SteppedWorkTell() {
  if (progressMode >= 1 && progressMode <= 4) SendCommand(hSearchDlg, 2376);
}

void HandOffStep() {
  if (SclHandOffCheck()) SendCommand(hMainWnd, 2372);
}

void ReopenGuardStep() {
  if (MenuReopenGuard > 0) --MenuReopenGuard;
}

void PanelClose() {
  MenuPanelState = 0;
  SendCommand(hDiskMenu, kPanelCloseCommand);
}

// The pointer has not been inside the panel yet: it closes by count.
void PanelCountStep() {
  if (MenuPanelState != kPanelTop || MenuCloseCount == kMenuInside) return;
  if (MenuCloseCount != 0) --MenuCloseCount;
  if (MenuCloseCount == 0) PanelClose();
}

// The pointer has been inside: it closes as soon as the pointer is outside.
void PanelPointerStep() {
  if (MenuPanelState != kPanelTop || MenuCloseCount != kMenuInside) return;
  const Point at = PointerPosition();
  if (at.x < MenuPanelRect.left || at.x >= MenuPanelRect.right || at.y < MenuPanelRect.top ||
      at.y >= MenuPanelRect.bottom) {
    PanelClose();
  }
}

void MailStep() {
  if (!MailCheckOn) return;
  if (++MailTickCount >= kMailUnitTicks) {
    MailTickCount = 0;
    if (MailMinuteCount != 0) --MailMinuteCount;
  }
  if (MailMinuteCount == 0) {
    MailMinuteCount = MailInterval;
    SendCommand(hMainWnd, 2079);
  }
  if (MailNoticeFlag == 1) MailNoticeStart();
}

void ClockStep() {
  const bool adjusting = DlgIdTool == 2016 && hToolDlg;
  if (!adjusting && !hClockWnd && !SclIsRunning() && !hCalenWnd) return;
  TimeGetLocal(&SharedTime);
  if (adjusting) WatchAdustTimeDraw();
  if (hClockWnd && ClockTickCheck(SharedTime.hour, SharedTime.minute) != 0) SendPaint(hClockWnd);
  if (SclIsRunning() && SclDueCheck()) SendCommand(hMainWnd, 2265);
  if (hCalenWnd || hClockNoticeWnd) {
    if (CalenTickCheck() != 0) SendPaint(hCalenWnd);
    if (ClockAlarmCheck(SharedTime.hour, SharedTime.minute) != 0) SendCommand(hMainWnd, 2336);
    if (hClockNoticeWnd && ClockNoticeWaitIsOver()) SendCommand(hClockNoticeWnd, 2258);
    if (hCalenWnd) CalenTickerTick();
  }
}

void MotionStep() {
  if (CharaMotionTick() != 0) SendCommand(hMainWnd, 2293);
}

void PreviewStep() {
  if (MotionPreviewTick() != 0) SendPaint(hSubDlg);
}

// Off at 0, until a feature that needs the five-tick step sets it.
void FrameDividerStep() {
  if (FrameDivider <= 0) return;
  if (--FrameDivider != 0) return;
  FrameDivider = kFrameDividerReload;
  MailNoticeFrameStep();
  SclNoticeFrameStep();
  AlarmCheckFrameStep();
}

void FileWatchStep() {
  if (++FileWatchCount < kFileWatchTicks) return;
  FileWatchCount = 0;
  FileWatch();
}

// --- What each step waits for: in how many ticks it may have something to do.

constexpr int kNever = std::numeric_limits<int>::max();

int NextIf(bool active) {
  return active ? 1 : kNever;
}

int PanelDue() {
  return NextIf(MenuPanelState == kPanelTop);
}

int MailDue() {
  if (!MailCheckOn) return kNever;
  if (MailMinuteCount == 0 || MailNoticeFlag == 1) return 1;
  return kMailUnitTicks - MailTickCount;
}

int ClockDue() {
  return NextIf(hToolDlg || hClockWnd || hCalenWnd || SclIsRunning());
}

// The divider goes on running when the last notice has closed, for nobody.
int FrameDividerDue() {
  return NextIf(FrameDivider > 0 && (hMailNoticeWnd || hSclNoticeWnd || hToolDlg));
}

struct TickStep {
  void (*run)();
  int (*due)();
};

// The order is part of the design: alarms and clock checks use the time that the
// clock's step reads, and the character moves after the alarms, so that a menu or
// an alarm that began in this tick draws first.
constexpr TickStep kSteps[] = {
    {CommandLineStep, [] { return NextIf(PendingCommandLine[0] != '\0'); }},
    {BackUpStepTell, [] { return NextIf(BackUpActive); }},
    {SteppedWorkTell, [] { return NextIf(progressMode != 0); }},
    {HandOffStep, [] { return NextIf(ApliStarted != 0); }},
    {ReopenGuardStep, [] { return NextIf(MenuReopenGuard > 0); }},
    {PanelCountStep, PanelDue},
    {PanelPointerStep, PanelDue},
    {MailStep, MailDue},
    {OpnGroupTick, [] { return NextIf(OpnPendingGroup != nullptr); }},
    {WalkTickAll, [] { return NextIf(WalkActive); }},
    {WalkEndTickAll, [] { return NextIf(WalkEndActive); }},
    {ClockPreviewStep, [] { return NextIf(hToolDlg != nullptr); }},
    {ClockStep, ClockDue},
    {MotionStep, CharaMotionDue},
    {PreviewStep, [] { return NextIf(hSubDlg != nullptr); }},
    {FrameDividerStep, FrameDividerDue},
    {TableScrollTick, [] { return NextIf(hSclTableWnd || hPlanWnd); }},
    {FileWatchStep, [] { return kFileWatchTicks - FileWatchCount; }},
};

}  // namespace

void MainTick() {
  ++TickCount;
  for (const TickStep& step : kSteps) {
    if (Quitting) return;
    step.run();
  }
}

int TicksUntilDue() {
  int first = kNever;
  for (const TickStep& step : kSteps) first = std::min(first, step.due());
  return std::max(first, 1);
}
