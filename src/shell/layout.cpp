#include "shell/layout.h"

#include "character/character.h"
#include "character/character_commands.h"
#include "character/stage.h"
#include "clock_calendar/calendar/calendar.h"
#include "clock_calendar/calendar/calendar_size.h"
#include "clock_calendar/calendar/calendar_window.h"
#include "clock_calendar/clock/clock.h"
#include "clock_calendar/clock/clock_size.h"
#include "services/commands.h"
#include "services/screen_figures.h"

LayoutState Layout;

namespace {

constexpr int kEdge = 10;

// The items' places on the screen.
struct Place {
  const std::int32_t& x;
  const std::int32_t& y;
  void (*set)(std::int32_t x, std::int32_t y);
};
constexpr Place kPlaces[kLayoutItemCount] = {{Character.StageX, Character.StageY, StagePlaceSet},
                                             {Clock.ClockX, Clock.ClockY, ClockPlaceSet},
                                             {Calendar.CalenX, Calendar.CalenY, CalenPlaceSet}};

int DivFor(int width, int height) {
  int div = 3;
  if (width / div >= 401 || height / div >= 241) div = 4;
  if (width / div >= 401 || height / div > 240) div = 5;
  return div;
}

}  // namespace

void LayoutTake() {
  Layout.LayoutDiv = DivFor(Screen.ScreenWidth, Screen.ScreenHeight);
  Layout.LayoutScreen = {Screen.ScreenWidth / Layout.LayoutDiv, Screen.ScreenHeight / Layout.LayoutDiv};
  const LayoutExtent sizes[kLayoutItemCount] = {{Stage.StageWidth, Stage.StageHeight},
                                                {ClockLayoutWidth(), ClockPictureHeight()},
                                                {CalenLayoutWidth(), CalenLayoutHeight()}};
  for (int item = 0; item < kLayoutItemCount; ++item) {
    Layout.LayoutPos[item] = {kPlaces[item].x / Layout.LayoutDiv, kPlaces[item].y / Layout.LayoutDiv};
    Layout.LayoutSize[item] = {sizes[item].width / Layout.LayoutDiv, sizes[item].height / Layout.LayoutDiv};
    Layout.LayoutDrag[item] = false;
  }
}

int LayoutItemAt(int x, int y) {
  for (int item = 0; item < kLayoutItemCount; ++item) {
    const Point& at = Layout.LayoutPos[item];
    const LayoutExtent& size = Layout.LayoutSize[item];
    if (x >= at.x && x <= at.x + size.width && y >= at.y && y <= at.y + size.height) return item;
  }
  return -1;
}

void LayoutPut() {
  Layout.LayoutChange = 0;
  for (int item = 0; item < kLayoutItemCount; ++item) {
    const Place& place = kPlaces[item];
    const std::int32_t x = Layout.LayoutPos[item].x * Layout.LayoutDiv;
    const std::int32_t y = Layout.LayoutPos[item].y * Layout.LayoutDiv;
    if (x == place.x && y == place.y) continue;
    place.set(x, y);
    Layout.LayoutChange |= 1 << item;
  }
}

void LayoutDefault() {
  const int clockWidth = ClockLayoutWidth();
  const int clockHeight = ClockLayoutHeight();
  const int calenWidth = CalenLayoutWidth();
  const int right = Screen.ScreenWidth - kEdge;
  CalenPlaceSet(right - calenWidth, kEdge);
  const int below = kEdge + CalenLayoutHeight();
  if (below + Stage.StageHeight > Screen.ScreenHeight) {
    StagePlaceSet(Calendar.CalenX - Stage.StageWidth - kEdge, kEdge);
    if (below + clockHeight > Screen.ScreenHeight) {
      ClockPlaceSet(Character.StageX - clockWidth - kEdge, kEdge);
    } else {
      ClockPlaceSet(right - clockWidth, below);
    }
    return;
  }
  StagePlaceSet(right - Stage.StageWidth, below);
  if (below + Stage.StageHeight + clockHeight <= Screen.ScreenHeight &&
      Screen.ScreenWidth / 2 > Calendar.CalenX) {
    ClockPlaceSet(right - clockWidth, below + Stage.StageHeight);
  } else {
    ClockPlaceSet(Screen.ScreenWidth - calenWidth - clockWidth - 2 * kEdge, kEdge);
  }
}

void CommandLayoutApply(Command) {
  if ((Layout.LayoutChange & kLayoutStage) != 0) StageMove(true);
  if ((Layout.LayoutChange & kLayoutClock) != 0) CommandSend(Command::ClockOpen);
  if ((Layout.LayoutChange & kLayoutCalendar) != 0) CalenWindowRenew();
  Layout.LayoutChange = 0;
}
