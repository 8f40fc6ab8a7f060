#include "schedule/table/table_scroll.h"

#include <algorithm>

#include "platform/dialog.h"
#include "platform/window.h"
#include "services/scroll_set.h"

SclTableState SclTable;

namespace {

constexpr int kPage = 10;
constexpr int kWheelLines = 3;
constexpr int kThumbAtEnd = 2;
constexpr int kThumbEndTop = 3;

int LastTop(const TableView& view) {
  return std::max(0, view.lines - view.pageLines);
}

void BarSet(const TableView& view) {
  if (!view.scrollBar) return;
  ScrollSet(nullptr, 0, kTableLineHeight, view.lines, view.firstLine, view.scrollBar);
}

// kept: near its end the thumb of a table's scroll bar has a rule of its own, and the top that
// comes of it is pulled back.
int ThumbTop(const TableView& view, int position) {
  if (position <= 0) return 0;
  const int top = view.lines - position <= kThumbAtEnd ? view.lines - kThumbEndTop : position;
  return std::clamp(top, 0, LastTop(view));
}

int PageDownTop(const TableView& view) {
  const int below = view.lines - (view.firstLine + view.pageLines);
  return below < kPage + 1 ? LastTop(view) : view.firstLine + kPage;
}

int TopAfter(const TableView& view, Scroll scroll, int position) {
  const int top = view.firstLine;
  switch (scroll) {
    case Scroll::LineUp:
      return std::max(0, top - 1);
    case Scroll::LineDown:
      return view.lines >= view.pageLines + top + 1 ? top + 1 : top;
    case Scroll::PageUp:
      return top <= kPage ? 0 : top - kPage;
    case Scroll::PageDown:
      return PageDownTop(view);
    case Scroll::Top:
      return 0;
    case Scroll::Bottom:
      return LastTop(view);
    case Scroll::Thumb:
      return ThumbTop(view, position);
    case Scroll::End:
      break;
  }
  return top;
}

// settled: a notch of the wheel is worth three clicks on an arrow of the scroll bar.
bool Wheel(TableView& view, int notches) {
  const Scroll scroll = notches > 0 ? Scroll::LineUp : Scroll::LineDown;
  bool moved = false;
  for (int i = 0; i < std::abs(notches) * kWheelLines; ++i) {
    if (!TableScrollMove(view, scroll)) break;
    moved = true;
  }
  return moved;
}

void WindowForget(WindowHandle window) {
  if (SclTable.clicked == window) SclTable.clicked = nullptr;
  SclTable.TableScrollDirection = ScrollDirection::None;
}

}  // namespace

void SclTableWindowSet(WindowHandle window) {
  WindowForget(SclTable.hSclTableWnd);
  SclTable.hSclTableWnd = window;
  SclTable.SclTableView = {};
}

void PlanWindowSet(WindowHandle window, const RowTable* rows, void (*redraw)(WindowHandle)) {
  WindowForget(SclTable.hPlanWnd);
  SclTable.hPlanWnd = window;
  SclTable.planRows = rows;
  SclTable.PlanView = {};
  SclTable.PlanView.redraw = redraw;
}

void RowGuestSet(WindowHandle window) {
  WindowForget(SclTable.guest);
  SclTable.guest = window;
}

void TableViewFit(TableView& view, int lines, int pageLines) {
  view.lines = lines;
  view.pageLines = std::max(pageLines, 0);
  view.firstLine = std::clamp(view.firstLine, 0, LastTop(view));
  BarSet(view);
}

bool TableScrollMove(TableView& view, Scroll scroll, int position) {
  const int top = TopAfter(view, scroll, position);
  const bool moved = top != view.firstLine;
  view.firstLine = top;
  return moved;
}

void TableScrollShow(WindowHandle window, TableView& view) {
  if (view.redraw) {
    view.redraw(window);
  } else {
    SendPaint(window);
  }
  BarSet(view);
}

bool TableScrollEvent(const Event& event, TableView& view) {
  bool moved = false;
  if (event.kind == EventKind::Wheel) {
    moved = Wheel(view, event.wheel);
  } else if (event.kind == EventKind::VScroll && event.control && event.control == view.scrollBar) {
    moved = TableScrollMove(view, event.scroll, event.scrollPosition);
  } else {
    return false;
  }
  if (moved) TableScrollShow(event.window, view);
  return true;
}

void TableBarPlace(WindowHandle window, TableView& view, int id, const Rect& place) {
  if (view.scrollBar) {
    WindowMove(view.scrollBar, place.left, place.top, RectWidth(place), RectHeight(place), true);
  } else {
    view.scrollBar = ControlCreate(window, ControlKind::VerticalScrollBar, id, place, "");
  }
  BarSet(view);
}

void TableScrollStart(ScrollDirection direction) {
  SclTable.TableScrollDirection = direction;
}

void TableScrollStop() {
  SclTable.TableScrollDirection = ScrollDirection::None;
  SclTable.AutoScrollDelay = 0;
}

void TableScrollBarDestroy() {
  WindowDestroy(SclTable.SclTableView.scrollBar);
  SclTable.SclTableView.scrollBar = nullptr;
}

void TableScrollForget() {
  SclTable.TableScrollDirection = ScrollDirection::None;
}
