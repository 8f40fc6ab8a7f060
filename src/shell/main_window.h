// The main window: the character's stage, and the target of all commands.
#pragma once

#include <cstdint>

#include "platform/event.h"

// The client area's size as the window was last told.
extern std::int32_t MainClientWidth;
extern std::int32_t MainClientHeight;

bool MainWindowProc(const Event& event);
