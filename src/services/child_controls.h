// The shared table of child controls that features make at run time.
#pragma once

#include "platform/dialog.h"
#include "platform/types.h"

inline constexpr int kChildControlCount = 711;
struct ChildrenState {
  WindowHandle ChildControls[kChildControlCount] = {};
};
extern ChildrenState Children;

// Destroys the controls from `first` to `last`, both in, and clears their places.
void ChildControlsDestroy(int first, int last);

// Makes a control at a place of the table, instead of the one that is there.
void ChildControlMake(int place, WindowHandle parent, ControlKind kind, int id, const Rect& at,
                      const char* text);
