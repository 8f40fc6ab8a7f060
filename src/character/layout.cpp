#include "character/layout.h"

#include "character/character.h"
#include "character/character_commands.h"
#include "character/stage.h"
#include "clock_calendar/calendar.h"
#include "clock_calendar/clock.h"
#include "clock_calendar/clock_calendar_sizes.h"
#include "clock_calendar/clock_calendar_tick.h"
#include "platform/time.h"
#include "platform/window.h"
#include "shell/shell.h"

std::int32_t LayoutChange;
std::int32_t LayoutDiv = 3;
Point LayoutPos[kLayoutItemCount];
LayoutExtent LayoutSize[kLayoutItemCount];
LayoutExtent LayoutScreen;
bool LayoutDrag[kLayoutItemCount];

namespace {

constexpr int kEdge = 10;

// The items' places on the screen.
struct Place {
  std::int32_t* x;
  std::int32_t* y;
};
constexpr Place kPlaces[kLayoutItemCount] = {{&StageX, &StageY}, {&ClockX, &ClockY}, {&CalenX, &CalenY}};

int DivFor(int width, int height) {
  int div = 3;
  if (width / div >= 401 || height / div >= 241) div = 4;
  if (width / div >= 401 || height / div > 240) div = 5;
  return div;
}

void ClockApply() {
  SendClose(hClockWnd);
  if (ClockShow == 0) return;
  LocalTime now;
  TimeGetLocal(&now);
  ClockTimeTake(now.hour, now.minute);
  if (!hClockWnd) ClockWindowOpen();
}

void CalendarApply() {
  SendClose(hCalenWnd);
  if (CalenShow != 0 && !hCalenWnd) CalenWindowOpen();
}

}  // namespace

void LayoutTake() {
  LayoutDiv = DivFor(ScreenWidth, ScreenHeight);
  LayoutScreen = {ScreenWidth / LayoutDiv, ScreenHeight / LayoutDiv};
  const LayoutExtent sizes[kLayoutItemCount] = {{StageWidth, StageHeight},
                                                {ClockLayoutWidth(), ClockLayoutHeight()},
                                                {CalenLayoutWidth(), CalenLayoutHeight()}};
  for (int item = 0; item < kLayoutItemCount; ++item) {
    LayoutPos[item] = {*kPlaces[item].x / LayoutDiv, *kPlaces[item].y / LayoutDiv};
    LayoutSize[item] = {sizes[item].width / LayoutDiv, sizes[item].height / LayoutDiv};
    LayoutDrag[item] = false;
  }
}

int LayoutItemAt(int x, int y) {
  for (int item = 0; item < kLayoutItemCount; ++item) {
    const Point& at = LayoutPos[item];
    const LayoutExtent& size = LayoutSize[item];
    if (x >= at.x && x <= at.x + size.width && y >= at.y && y <= at.y + size.height) return item;
  }
  return -1;
}

void LayoutPut() {
  LayoutChange = 0;
  for (int item = 0; item < kLayoutItemCount; ++item) {
    const Place& place = kPlaces[item];
    const std::int32_t x = LayoutPos[item].x * LayoutDiv;
    const std::int32_t y = LayoutPos[item].y * LayoutDiv;
    if (x == *place.x && y == *place.y) continue;
    *place.x = x;
    *place.y = y;
    LayoutChange |= 1 << item;
  }
}

void LayoutDefault() {
  const int clockWidth = ClockLayoutWidth();
  const int clockHeight = ClockLayoutHeight();
  const int calenWidth = CalenLayoutWidth();
  const int right = ScreenWidth - kEdge;
  CalenX = right - calenWidth;
  CalenY = kEdge;
  const int below = kEdge + CalenLayoutHeight();
  if (below + StageHeight > ScreenHeight) {
    StageX = CalenX - StageWidth - kEdge;
    StageY = kEdge;
    if (below + clockHeight > ScreenHeight) {
      ClockX = StageX - clockWidth - kEdge;
      ClockY = kEdge;
    } else {
      ClockX = right - clockWidth;
      ClockY = below;
    }
    return;
  }
  StageX = right - StageWidth;
  StageY = below;
  if (below + StageHeight + clockHeight <= ScreenHeight && ScreenWidth / 2 > CalenX) {
    ClockX = right - clockWidth;
    ClockY = below + StageHeight;
  } else {
    ClockX = ScreenWidth - calenWidth - clockWidth - 2 * kEdge;
    ClockY = kEdge;
  }
}

void CommandLayoutApply(std::uint32_t) {
  if ((LayoutChange & kLayoutStage) != 0) StageMove(true);
  if ((LayoutChange & kLayoutClock) != 0) ClockApply();
  if ((LayoutChange & kLayoutCalendar) != 0) CalendarApply();
  LayoutChange = 0;
}
