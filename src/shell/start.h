// The start sequence.
#pragma once

#include "platform/types.h"

// Brings the program up around its main window, in the fixed order. Reading
// failures of data files are silent; without the settings file the sequence ends
// early: no alarm images, no clock, no calendar.
void StartSequence(WindowHandle window);
