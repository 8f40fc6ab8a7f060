// The main window: the character's stage, and the target of all commands.
#pragma once

#include "platform/event.h"

bool MainWindowProc(const Event& event);
