// What waits to be painted of a window.
#pragma once

#include "platform/types.h"

// Nothing of the window waits to be painted any more; for a painting that makes or destroys
// controls, which would ask for the next painting. The controls themselves still wait.
void WindowValidate(WindowHandle window);
