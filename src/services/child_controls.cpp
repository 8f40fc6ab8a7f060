#include "services/child_controls.h"

#include "platform/window.h"

ChildrenState Children;

void ChildControlsDestroy(int first, int last) {
  for (int i = first; i <= last && i < kChildControlCount; ++i) {
    if (!Children.ChildControls[i]) continue;
    WindowDestroy(Children.ChildControls[i]);
    Children.ChildControls[i] = nullptr;
  }
}
