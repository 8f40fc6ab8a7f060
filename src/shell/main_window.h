// The main window: the character's stage, and the target of all commands.
#pragma once

#include <cstdint>

#include "platform/event.h"

struct MainWindowState {
  // The client area's size as the window was last told.
  std::int32_t MainClientWidth = 0;
  std::int32_t MainClientHeight = 0;
};
extern MainWindowState MainWindow;

bool MainWindowProc(const Event& event);
