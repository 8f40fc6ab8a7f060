// The music table.
#pragma once

#include "platform/types.h"

struct MusicState {
  WindowHandle hBgmWnd = nullptr;  // EntertainmentBGMDlg
};
extern MusicState Music;

void MusicReset();
