#include "platform/screen.h"

#include "platform/win32/border.h"

int ScreenMetric(Metric metric) {
  switch (metric) {
    case Metric::FullScreenWidth:
      return GetSystemMetrics(SM_CXFULLSCREEN);
    case Metric::FullScreenHeight:
      return GetSystemMetrics(SM_CYFULLSCREEN);
    case Metric::MenuHeight:
      return GetSystemMetrics(SM_CYMENU);
    case Metric::SizeButtonWidth:
      return GetSystemMetrics(SM_CXSIZE);
    case Metric::FrameWidth:
      return GetSystemMetrics(SM_CXFRAME);
    case Metric::FrameHeight:
      return GetSystemMetrics(SM_CYFRAME);
    case Metric::EdgeHeight:
      return GetSystemMetrics(SM_CYEDGE);
    case Metric::CaptionHeight:
      return GetSystemMetrics(SM_CYCAPTION);
  }
  return 0;
}

Point PointerPosition() {
  POINT at{};
  GetCursorPos(&at);
  return {static_cast<int>(at.x), static_cast<int>(at.y)};
}
