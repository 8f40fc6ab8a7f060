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

void ChildControlMake(int place, WindowHandle parent, ControlKind kind, int id, const Rect& at,
                      const char* text) {
  if (place < 0 || place >= kChildControlCount) return;
  ChildControlsDestroy(place, place);
  Children.ChildControls[place] = ControlCreate(parent, kind, id, at, text);
}
