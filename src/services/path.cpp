#include "services/path.h"

#include <cstring>

#include "platform/cp932.h"
#include "platform/file.h"
#include "services/boxes.h"
#include "services/data_file.h"
#include "services/text.h"

PathPartsState PathParts;

namespace {

// The place of the last backslash, -1 if there is none.
int LastSeparator(const char* path) {
  int last = -1;
  for (int at = 0; path[at] != '\0'; ++at) {
    if (path[at] == '\\') last = at;
    if (IsSjisLead(path[at]) && path[at + 1] != '\0') ++at;
  }
  return last;
}

char UpperCase(char letter) {
  return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

bool BeginsWith(const char* name, const char* upper) {
  while (*upper != '\0' && UpperCase(*name) == *upper) ++name, ++upper;
  return *upper == '\0';
}

// True if the name is one that the system keeps for a device; a file of that name, with
// whatever extension, is never made.
bool IsDevice(const char* name) {
  struct Device {
    const char* name;
    bool numbered;  // from 1 to 9
  };
  constexpr Device devices[] = {{"CON", false}, {"PRN", false}, {"AUX", false},
                                {"NUL", false}, {"COM", true},  {"LPT", true}};
  for (const Device& device : devices) {
    if (!BeginsWith(name, device.name)) continue;
    const char* rest = name + std::strlen(device.name);
    if (device.numbered && (*rest < '1' || *rest++ > '9')) continue;
    while (*rest == ' ') ++rest;
    if (*rest == '\0' || *rest == '.') return true;
  }
  return false;
}

}  // namespace

void PathSplit(const char* path) {
  TextCopy(PathParts.PathFolder, sizeof PathParts.PathFolder, path);
  char* name = PathParts.PathFolder + LastSeparator(PathParts.PathFolder) + 1;
  PathParts.PathName[0] = '\0';
  if (name == PathParts.PathFolder) return;
  TextCopy(PathParts.PathName, sizeof PathParts.PathName, name);
  std::memset(name, 0, std::strlen(name));
}

bool PathIsBareName(const char* name) {
  // Asked strictly: only what the system's code page takes for a pair hides a
  // backslash, and no pair has a slash or a colon.
  for (const char* at = name; *at != '\0'; ++at) {
    if (*at == '\\' || *at == '/' || *at == ':') return false;
    if (Cp932Leads(*at) && at[1] != '\0' && at[1] != '/' && at[1] != ':') ++at;
  }
  return name[0] != '\0' && !IsDevice(name);
}

bool PathIsFull(const char* path) {
  return path[0] == '\\' || (path[0] != '\0' && path[1] == ':');
}

int FileExists(const char* path) {
  FileResult.FileStatus = 0;
  const int file = FileOpen(path, OpenMode::ReadWrite);
  FileClose(file);
  return file == kNoFile ? 0 : 1;
}

bool OverwriteAllowed(WindowHandle owner, const char* path) {
  return FileExists(path) == 0 || BoxAsk(owner, "同一ﾌｧｲﾙが存在しますが、ｾｰﾌﾞしますか?", "ﾌｧｲﾙｾｰﾌﾞ");
}

bool PathCanGoUp(const char* folder) {
  const int last = LastSeparator(folder);
  return last > 0 && folder[last + 1] != '\0';
}

int PathGoUp(char* folder) {
  if (!PathCanGoUp(folder)) return -1;
  const int last = LastSeparator(folder);
  folder[last == 2 ? 3 : last] = '\0';
  return 0;
}

int PathGoDown(char* folder, int size, const char* name) {
  const std::size_t length = std::strlen(folder);
  const bool root = length > 0 && LastSeparator(folder) == static_cast<int>(length) - 1;
  if (length + (root ? 0 : 1) + std::strlen(name) >= static_cast<std::size_t>(size)) return -1;
  TextFormat(folder + length, static_cast<std::size_t>(size) - length, root ? "%s" : "\\%s", name);
  return 0;
}
