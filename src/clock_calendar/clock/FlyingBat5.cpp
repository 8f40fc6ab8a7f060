// FlyingBat5, the clock alarm's notice: the comment of the alarm, and below it the
// performance.
#include <algorithm>

#include "character/alarm_images.h"
#include "character/character_commands.h"
#include "character/notice_window.h"
#include "character/performance_figures.h"
#include "clock_calendar/clock/clock.h"
#include "clock_calendar/clock/clock_notice.h"
#include "clock_calendar/clock/performance.h"
#include "platform/canvas.h"
#include "platform/dialog.h"
#include "platform/window.h"
#include "resources/clock_calendar_ids.h"
#include "services/commands.h"
#include "services/painting.h"
#include "services/program.h"
#include "services/text.h"
#include "services/text_lines.h"
#include "services/today.h"

ClockNoticeState ClockNotice;

namespace {

constexpr int kTextX = 10;
constexpr int kTextY = 10;
constexpr int kLineStep = 20;
constexpr int kTextMargin = 8;
constexpr int kColumnWidth = 8;
constexpr int kColumnMax = 128;

// What the notice says and plays: an alarm's comment and performance, or, with no
// alarm's slot, only the performance that was chosen.
void ContentTake() {
  ClockNotice.comment[0] = '\0';
  if (Clock.ClockAlarmSlot < 0 || Clock.ClockAlarmSlot >= kAlarmSlotCount) return;
  const AlarmSlot& alarm = Clock.ClockEvents[Clock.ClockAlarmSlot];
  TextCopy(ClockNotice.comment, sizeof ClockNotice.comment, alarm.comment);
  Performance.PerformanceActive = alarm.performance;
}

void Begin(WindowHandle window) {
  ContentTake();
  NoticeShow(window);
  PerformanceBegin(Clock.ClockAlarmSlot >= 0);
}

// Centred in the area.
void DrawFigure(Canvas* canvas, const Rect& area) {
  FillArea(canvas, BrushFace(), area);
  if (!PerformanceShowsFigures()) return;
  const MaskedFrame figure = PerformanceFigure(Performance.PerformanceStep);
  MaskedDraw(canvas, area.left + (RectWidth(area) - DibWidth(figure.picture)) / 2,
             area.top + (RectHeight(area) - DibHeight(figure.picture)) / 2, figure.picture, figure.mask);
}

void Paint(WindowHandle window) {
  Canvas* canvas = CanvasGet(window);
  if (!canvas) return;
  const Rect client = WindowClientRect(window);
  CanvasBackTransparent(canvas, true);
  CanvasTextColour(canvas, 0);
  const int columns = std::min((client.right - kTextMargin) / kColumnWidth, kColumnMax);
  const int below = TextLinesDraw(canvas, kTextX, kTextY, kLineStep, ClockNotice.comment,
                                  sizeof ClockNotice.comment - 1, columns);
  if (client.right > 0 && client.bottom > below) {
    DrawSteady(canvas, {0, below, client.right, client.bottom}, DrawFigure);
  }
  CanvasRelease(canvas);
}

void NextStep() {
  PerformanceNext();
  SendPaint(ClockNotice.hClockNoticeWnd);
}

constexpr NoticeWindow kNotice{&ClockNotice.hClockNoticeWnd, Begin, Paint};

bool ClockNoticeProc(const Event& event) {
  if (NoticeEvent(kNotice, event)) return true;
  if (CommandIs(event, Command::NextStep)) NextStep();
  if (event.kind == EventKind::Destroy) PerformanceEnd();
  return event.kind == EventKind::Command || event.kind == EventKind::Destroy;
}

}  // namespace

bool ClockNoticeWaitIsOver() {
  return PerformanceWaitIsOver(Today.SharedTime);
}

void CommandClockNotice(Command) {
  if (NoticeClosed(&ClockNotice.hClockNoticeWnd))
    DialogOpen(IDD_FlyingBat5, Program.hMainWnd, ClockNoticeProc);
}
