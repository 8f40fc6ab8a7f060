// The size of the main window's client area, as the window was last told.
#pragma once

#include <cstdint>

struct MainClientState {
  std::int32_t MainClientWidth = 0;
  std::int32_t MainClientHeight = 0;
};
extern MainClientState MainClient;

void MainClientTake(int width, int height);
