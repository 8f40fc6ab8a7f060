#include "filetools/path_row.h"

#include "services/path.h"
#include "services/text.h"

void PathRow(const char* path, char* text, int size) {
  if (path[0] == '\0') {
    text[0] = '\0';
    return;
  }
  PathSplit(path);
  TextFormat(text, static_cast<std::size_t>(size), "%s [%s]", PathParts.PathName, PathParts.PathFolder);
}
