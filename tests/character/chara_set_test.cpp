// Where a walk begins on the screen.
#include "character/chara_set.h"

#include <gtest/gtest.h>

#include "services/screen_figures.h"
#include "tests/support/desktop.h"

namespace {

struct Start {
  int code;
  int x;
  int y;
};

class WalkStartTest : public DesktopTest {
 protected:
  static void Expect(const Start& start) {
    int x = -1;
    int y = -1;
    WalkStartPlace(start.code, &x, &y);
    EXPECT_EQ(x, start.x) << start.code;
    EXPECT_EQ(y, start.y) << start.code;
  }
};

TEST_F(WalkStartTest, EveryCodeHasItsPlace) {
  Screen.ScreenWidth = 1024;
  Screen.ScreenHeight = 768;
  constexpr Start kStarts[] = {{0, 1024, 768}, {1, 1024, 0},     {2, 0, 768}, {3, 0, 0},
                               {4, 512, 384},  {5, 1024, 384},   {6, 0, 384}, {7, 700, 600},
                               {-1, 700, 600}, {65535, 700, 600}};
  for (const Start& start : kStarts) Expect(start);
}

TEST_F(WalkStartTest, APlaceBeyondTheScreenIsAtItsEdge) {
  Screen.ScreenWidth = 640;
  Screen.ScreenHeight = 768;
  Expect({7, 640, 600});
  Screen.ScreenWidth = 1024;
  Screen.ScreenHeight = 480;
  Expect({7, 700, 480});
  Screen.ScreenWidth = 640;
  Expect({7, 640, 480});
  Screen.ScreenWidth = 700;
  Screen.ScreenHeight = 600;
  Expect({7, 700, 600});
}

}  // namespace
