// FlyingBat6, the desktop clock: a window in the shape of its design that shows the time.
#include "clock_calendar/clock/clock.h"
#include "clock_calendar/clock/clock_commands.h"
#include "clock_calendar/clock/clock_face.h"
#include "clock_calendar/clock/clock_pictures.h"
#include "clock_calendar/clock/clock_window.h"
#include "platform/canvas.h"
#include "platform/dialog.h"
#include "platform/time.h"
#include "platform/window.h"
#include "resources/clock_calendar_ids.h"
#include "services/commands.h"
#include "services/painting.h"
#include "services/popup_place.h"
#include "services/program.h"

namespace {

// The dial's own frame, unless a step of a performance shows another.
int FrameOnShow() {
  const int figure = ClockStrikeFigure();
  return figure == 0 ? 0 : figure - 1;
}

// settled: a step of the clock's performance whose picture is missing keeps the shape of the one before it.
void Shape(WindowHandle window) {
  if (!ClockShapeTake(FrameOnShow())) return;
  const Outline& shape = ClockPictures.shape;
  WindowSetRegion(window, RegionPolygon(shape.points, shape.count), true);
}

// settled: a clock design without a picture of its dial has the size of the template.
void Place(WindowHandle window) {
  Rect size = WindowRect(window);
  if (ImageHandle dial = ClockPicture(0)) size = {0, 0, DibWidth(dial), DibHeight(dial)};
  WindowMove(window, Clock.ClockX, Clock.ClockY, RectWidth(size), RectHeight(size), false);
}

void Begin(WindowHandle window) {
  Clock.hClockWnd = window;
  Clock.strike = ClockStrikePlay{};
  ClockPicturesBegin(ClockDesignAt(Clock.ClockDesign)->number);
  Place(window);
  Shape(window);
  WindowShow(window, true);
}

// A picture that covers the window needs no ground below it.
void Draw(Canvas* canvas, const Rect& area, BrushHandle face) {
  ImageHandle picture = ClockPicture(FrameOnShow());
  if (DibWidth(picture) < area.right || DibHeight(picture) < area.bottom) FillArea(canvas, face, area);
  DibDraw(canvas, 0, 0, picture);
  ClockTimeDraw(canvas, face);
}

void Paint(WindowHandle window) {
  Canvas* screen = CanvasGet(window);
  if (!screen) return;
  BrushHandle face = BrushCreate(Clock.ClockFaceColour);
  BrushHandle hand = BrushCreate(Clock.ClockHandColour);
  PenHandle edge = PenCreate(PenStyle::Solid, 1, Clock.ClockHandColour);
  DrawSteady(screen, WindowClientRect(window), [&](Canvas* canvas, const Rect& area) {
    CanvasBrush(canvas, hand);
    CanvasPen(canvas, edge);
    Draw(canvas, area, face);
  });
  CanvasRelease(screen);
  BrushDelete(face);
  BrushDelete(hand);
  PenDelete(edge);
}

void Menu(const Event& event) {
  if (!PopupMayOpen()) return;
  PopupPointSet({event.x, event.y});
  CommandSend(Command::ClockMenu);
}

void End() {
  Clock.hClockWnd = nullptr;
  Clock.strike = ClockStrikePlay{};
  ClockPicturesFree();
}

bool ClockProc(const Event& event) {
  switch (event.kind) {
    case EventKind::Init:
      Begin(event.window);
      return true;
    case EventKind::Paint:
      Paint(event.window);
      return true;
    case EventKind::RightDown:
      Menu(event);
      return true;
    case EventKind::Close:
      WindowDestroy(event.window);
      return true;
    case EventKind::Destroy:
      End();
      return true;
    default:
      return false;
  }
}

}  // namespace

void ClockWindowShow() {
  Shape(Clock.hClockWnd);
  SendPaint(Clock.hClockWnd);
}

// settled: a clock that is switched on with no design in force has nothing to show, and
// no window opens.
void ClockWindowOpen() {
  if (!ClockDesignAt(Clock.ClockDesign)) return;
  LocalTime now;
  TimeGetLocal(&now);
  ClockTimeTake(now.hour, now.minute);
  DialogOpen(IDD_FlyingBat6, Program.hMainWnd, ClockProc);
}

void CommandClockOpen() {
  SendClose(Clock.hClockWnd);
  if (Clock.ClockShow != 0 && !Clock.hClockWnd) ClockWindowOpen();
}
