// The screen and the pointer.
#pragma once

#include "platform/types.h"

enum class Metric {
  FullScreenWidth,  // working screen without bars and a caption
  FullScreenHeight,
  MenuHeight,
  SizeButtonWidth,
  FrameWidth,
  FrameHeight,
  EdgeHeight,
  CaptionHeight,
};

int ScreenMetric(Metric metric);

// The pointer's place on the screen.
Point PointerPosition();
