#include "shell/child_controls.h"

#include "platform/window.h"

WindowHandle ChildControls[kChildControlCount];

void ChildControlsDestroy(int first, int last) {
  for (int i = first; i <= last && i < kChildControlCount; ++i) {
    if (!ChildControls[i]) continue;
    WindowDestroy(ChildControls[i]);
    ChildControls[i] = nullptr;
  }
}
