#include "platform/screen.h"

#include "platform/headless/state.h"

namespace {
constexpr int kFullWidth = 1024;
constexpr int kFullHeight = 768;
int fullWidth = kFullWidth;
int fullHeight = kFullHeight;
Point pointer{};
}  // namespace

int ScreenMetric(Metric metric) {
  switch (metric) {
    case Metric::FullScreenWidth:
      return fullWidth;
    case Metric::FullScreenHeight:
      return fullHeight;
    case Metric::MenuHeight:
      return 20;
    case Metric::SizeButtonWidth:
      return 18;
    case Metric::FrameWidth:
    case Metric::FrameHeight:
      return 4;
    case Metric::EdgeHeight:
      return 2;
    case Metric::CaptionHeight:
      return 19;
  }
  return 0;
}

Point PointerPosition() {
  return pointer;
}

void SetPointer(int x, int y) {
  pointer = {x, y};
}

void ScreenSet(int width, int height) {
  fullWidth = width;
  fullHeight = height;
}

void ScreenReset() {
  ScreenSet(kFullWidth, kFullHeight);
  SetPointer(0, 0);
}
