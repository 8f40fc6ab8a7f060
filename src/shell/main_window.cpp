#include "shell/main_window.h"

#include "character/stage.h"
#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/clock/clock.h"
#include "platform/window.h"
#include "schedule/table/table_scroll.h"
#include "services/child_controls.h"
#include "services/program.h"
#include "services/screen_figures.h"
#include "shell/main_client.h"
#include "shell/panel.h"
#include "shell/shell_commands.h"
#include "shell/shutdown.h"
#include "shell/start.h"
#include "shell/tick_timer.h"

namespace {

constexpr int kEscape = 27;

void Init(const Event& event) {
  StartSequence(event.window);
}

void Paint(const Event&) {
  TextFiguresTake(Program.hMainWnd);
  StagePaint();
  // Windows that are painted in this window's wake, in this order.
  SendPaint(Clock.hClockWnd);
  SendPaint(Calendar.hCalenWnd);
  SendPaint(SclTable.hPlanWnd);
  SendPaint(SclTable.hSclTableWnd);
}

void Size(const Event& event) {
  MainClientTake(event.x, event.y);
  TableScrollBarDestroy();
  ChildControlsDestroy(0, 599);
  ChildControlsDestroy(705, 710);
}

void Close(const Event&) {
  // kept: the main window is never destroyed; the end of the process takes it.
  SendDestroy(Program.hMainWnd);
}

void Char(const Event& event) {
  // settled: the stage may have the keyboard while its panel is open; Escape then closes
  // the panel's window too, which would hear nothing more.
  if (event.key == kEscape) PanelDismiss();
}

void Nothing(const Event&) {}

struct Row {
  EventKind kind;
  void (*action)(const Event&);
};

// What the main window does about each event.
// kept: clicking, double clicking or right clicking the character does nothing, and it
// cannot be dragged; those events are taken all the same.
constexpr Row kRows[] = {
    {EventKind::Init, Init},
    {EventKind::Destroy, [](const Event&) { Shutdown(); }},
    {EventKind::Close, Close},
    {EventKind::Size, Size},
    {EventKind::Paint, Paint},
    {EventKind::Timer, [](const Event&) { TickTimerFired(); }},
    {EventKind::Command, [](const Event& event) { CommandRoute(event.command); }},
    {EventKind::MouseMove, PanelPointerOnStage},
    {EventKind::LeftUp, [](const Event&) { TableScrollStop(); }},
    {EventKind::Char, Char},
    {EventKind::SetCursor, Nothing},
    {EventKind::LeftDown, Nothing},
    {EventKind::LeftDouble, Nothing},
    {EventKind::RightDown, Nothing},
    {EventKind::MiddleDown, Nothing},
    {EventKind::Wheel, Nothing},
    {EventKind::KeyDown, Nothing},
    {EventKind::VScroll, Nothing},
    {EventKind::User, Nothing},
};

}  // namespace

bool MainWindowProc(const Event& event) {
  if (event.kind != EventKind::Timer) TickTimerWake();
  for (const Row& row : kRows) {
    if (row.kind != event.kind) continue;
    row.action(event);
    return true;
  }
  return false;
}
