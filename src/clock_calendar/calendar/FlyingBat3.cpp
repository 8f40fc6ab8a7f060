// FlyingBat3, the calendar on the desktop.
#include <algorithm>

#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/calendar/calendar_hits.h"
#include "clock_calendar/calendar/calendar_memo.h"
#include "clock_calendar/calendar/calendar_page.h"
#include "clock_calendar/calendar/calendar_size.h"
#include "clock_calendar/calendar/calendar_window.h"
#include "platform/dialog.h"
#include "platform/time.h"
#include "platform/window.h"
#include "platform/window_paint.h"
#include "resources/calendar_ids.h"
#include "services/child_controls.h"
#include "services/commands.h"
#include "services/dialog_acts.h"
#include "services/drawing_objects.h"
#include "services/painting.h"
#include "services/popup_place.h"
#include "services/program.h"
#include "services/tick_step.h"
#include "services/today.h"

namespace {

// The places of its buttons in the shared table: two of the day page, two of the week page.
constexpr int kFirstButton = 700;
constexpr int kLastButton = 703;
constexpr int kWeekButtons = 2;

// --- Size and opening

void SizeTake(WindowHandle window) {
  const int below = Calendar.CalenMemoDay != 0 ? kCalenBelowPageWithMemo : kCalenBelowPage;
  Calendar.CalenW = CalenPageMeasure().pageWidth;
  Calendar.CalenH = CalenPageHeight() + kCalenBelowPage;
  WindowMove(window, Calendar.CalenX, Calendar.CalenY, Calendar.CalenW, CalenPageHeight() + below, false);
}

void Open(WindowHandle window) {
  Calendar.hCalenWnd = window;
  // The clicked day stays: the window may be opened anew under its popup or its dialog.
  Calendar.CalenMemoDay = Calendar.CalenPointedDay = 0;
  Calendar.CalenDayOffset = 0;
  CalenShowToday();
  SizeTake(window);
}

// --- Painting

void ButtonsDestroy() {
  ChildControlsDestroy(kFirstButton, kLastButton);
}

void ButtonsMake(WindowHandle window) {
  ButtonsDestroy();
  CalenStepButtons buttons;
  if (!CalenStepButtonsOf(&buttons)) return;
  const int place = Calendar.CalenKind == kPageWeek ? kFirstButton + kWeekButtons : kFirstButton;
  ChildControlMake(place, window, ControlKind::Button, buttons.backId, buttons.back, "<");
  ChildControlMake(place + 1, window, ControlKind::Button, buttons.onId, buttons.on, ">");
}

void PageDraw(Canvas* canvas, const Rect& area) {
  const CalenPage page = CalenPageOnShow();
  const Point corner = CalenPageCorner();
  FillArea(canvas, Drawing.Brushes[kBrushFFFFFF], area);
  CalenPageDraw(canvas, page, {area.left + corner.x, area.top + corner.y});
  CalenPictureLayerDraw(canvas, page, {area.left, area.top});
  if (Calendar.CalenNearNote != 0 && Calendar.CalenMemoDay == 0)
    CalenNearListDraw(canvas, {area.left, area.top + CalenPageHeight()}, RectWidth(area));
}

void Paint(WindowHandle window) {
  Canvas* screen = CanvasGet(window);
  if (!screen) return;
  DrawSteady(screen, {0, 0, CalenLayoutWidth(), CalenLayoutHeight()}, PageDraw);
  if (Calendar.CalenMemoDay != 0) CalenMemoDraw(screen);
  if (Calendar.CalenTickerOn && Calendar.tickerRests == 0) CalenTickerDraw(screen);
  CanvasRelease(screen);
  ButtonsMake(window);
  WindowValidate(window);
}

void Clear(WindowHandle window) {
  ButtonsDestroy();
  Canvas* screen = CanvasGet(window);
  if (screen) FillArea(screen, BrushFace(), WindowClientRect(window));
  CanvasRelease(screen);
  SendPaint(window);
}

// --- What the user does

void Step(WindowHandle window, int way) {
  CalenDayStep(way);
  SendPaint(window);
}
void StepBack(WindowHandle window) {
  Step(window, kHitMemoBack);
}
void StepOn(WindowHandle window) {
  Step(window, kHitMemoOn);
}

bool IsDay(int hit) {
  return hit != kHitNothing && hit < kHitMemoClose;
}

void MemoClose(WindowHandle window) {
  Calendar.CalenMemoDay = 0;
  SizeTake(window);
  CommandSendTo(window, Command::CalendarClear);
}

void LeftDown(const Event& event) {
  if (Calendar.CalenMemoDay == 0) return;
  const int hit = CalenHitTest(event.x, event.y);
  if (hit == kHitMemoClose) {
    MemoClose(event.window);
  } else if (IsDay(hit)) {
    Calendar.CalenMemoDay = hit;
    SendPaint(event.window);
  } else if (hit != kHitNothing) {
    Step(event.window, hit);
  }
}

void LeftDouble(const Event& event) {
  const int hit = CalenHitTest(event.x, event.y);
  if (!IsDay(hit)) return;
  const bool showed = Calendar.CalenMemoDay != 0;
  Calendar.CalenMemoDay = hit;
  if (!showed) SizeTake(event.window);
  CommandSendTo(event.window, Command::CalendarClear);
}

void RightDown(const Event& event) {
  if (!PopupMayOpen()) return;
  const int hit = CalenHitTest(event.x, event.y);
  if (!IsDay(hit)) return;
  CalenClickedDaySet(hit);
  SendPaint(event.window);
  PopupPointSet({event.x, event.y});
  CommandSend(Command::CalendarMenu);
}

void Move(const Event& event) {
  const int hit = CalenHitTest(event.x, event.y);
  const int day = IsDay(hit) ? hit : 0;
  if (day == Calendar.CalenPointedDay) return;
  Calendar.CalenPointedDay = day;
  SendPaint(event.window);
}

template <void (*act)(const Event&)>
void WithoutShift(const Event& event) {
  if ((event.keys & kShiftHeld) == 0) act(event);
}

// --- Its end

void Gone(const Event& event) {
  if (Calendar.hCalenWnd != event.window) return;
  Calendar.hCalenWnd = nullptr;
  Calendar.CalenMemoDay = 0;
  ButtonsDestroy();
}

void Close(const Event& event) {
  Gone(event);
  WindowDestroy(event.window);
}

void Nothing() {}

constexpr DialogAct kActs[] = {
    {EventKind::Init, Open},
    {EventKind::Paint, Paint},
    {Command::CalendarClear, Clear},
    {static_cast<int>(Command::CalendarDayBack), StepBack},
    {static_cast<int>(Command::CalendarDayOn), StepOn},
    {static_cast<int>(Command::CalendarWeekBack), StepBack},
    {static_cast<int>(Command::CalendarWeekOn), StepOn},
    {Command::CalendarDayBack, StepBack},
    {Command::CalendarDayOn, StepOn},
    {Command::CalendarWeekBack, StepBack},
    {Command::CalendarWeekOn, StepOn},
    {EventKind::LeftDown, WithoutShift<LeftDown>},
    {EventKind::LeftDouble, WithoutShift<LeftDouble>},
    {EventKind::RightDown, WithoutShift<RightDown>},
    {EventKind::MouseMove, WithoutShift<Move>},
    {EventKind::Close, Close},
    {EventKind::Destroy, Gone},
    // Enter and Escape do not end it.
    {kOkButton, Nothing},
    {kCancelButton, Nothing},
};

bool FlyingBat3Proc(const Event& event) {
  return DialogActRun(event, kActs);
}

}  // namespace

void CalenWindowOpen() {
  const WindowHandle window = DialogOpen(IDD_FlyingBat3, Program.hMainWnd, FlyingBat3Proc);
  if (window) SendPaint(window);
}

void CalenWindowRenew() {
  SendClose(Calendar.hCalenWnd);
  if (Calendar.CalenShow != 0) CommandSend(Command::CalendarOpen);
}

int CalenWindowDue() {
  LocalTime now;
  TimeGetLocal(&now);
  return std::min({CalenTickerDue(), CalenFiguresDue(), TicksToMidnight(now)});
}
