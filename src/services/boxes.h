// The two message boxes that nearly all of the program's boxes are.
#pragma once

#include "platform/types.h"

// Tells something, with an exclamation mark and OK.
void BoxTell(WindowHandle owner, const char* text, const char* caption);

// Asks something, with a question mark, OK and Cancel. True for OK.
bool BoxAsk(WindowHandle owner, const char* text, const char* caption);
