// The two message boxes that nearly all of the program's boxes are.
#pragma once

#include "platform/types.h"

// The words of a box; without a text there is no box.
struct BoxWords {
  const char* text = nullptr;
  const char* caption = nullptr;
};

// Tells something, with an exclamation mark and OK.
void BoxTell(WindowHandle owner, const char* text, const char* caption);
void BoxTell(WindowHandle owner, const BoxWords& words);

// Asks something, with a question mark, OK and Cancel. True for OK.
bool BoxAsk(WindowHandle owner, const char* text, const char* caption);
bool BoxAsk(WindowHandle owner, const BoxWords& words);  // true without words
