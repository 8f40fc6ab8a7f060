// The current folder, for tests of what moves it.
#pragma once

#include <string>

#include "platform/file.h"

inline void GoTo(const std::string& folder) {
  FolderSetCurrent(folder.c_str());
}

inline std::string CurrentFolder() {
  char folder[512];
  return FolderGetCurrent(folder, sizeof folder) > 0 ? folder : "";
}
