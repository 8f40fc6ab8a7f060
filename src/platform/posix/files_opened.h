// Which files were opened, and how: for tests of sharing.
#pragma once

#include <string>
#include <vector>

#include "platform/file.h"

struct FileOpened {
  std::string path;  // as it was asked for
  bool created = false;
  OpenMode mode = OpenMode::ReadWrite;  // that of a created file too

  bool operator==(const FileOpened&) const = default;
};

// Every file that FileOpen and FileCreate have opened since the last FilesOpenedClear, in
// order.
const std::vector<FileOpened>& FilesOpened();
void FilesOpenedClear();
