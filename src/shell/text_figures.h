// The figures of the text font that layouts are made with.
#pragma once

#include "platform/types.h"

// Takes CharWidth and LineHeight anew from a canvas of the window.
void TextFiguresTake(WindowHandle window);
