// The shared table of child controls that features make at run time.
#pragma once

#include "platform/types.h"

inline constexpr int kChildControlCount = 711;
struct ChildrenState {
  WindowHandle ChildControls[kChildControlCount] = {};
};
extern ChildrenState Children;

// Destroys the controls from `first` to `last`, both in, and clears their places.
void ChildControlsDestroy(int first, int last);
