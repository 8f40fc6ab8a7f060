#include "filetools/open/open_programs.h"

#include <algorithm>
#include <cstring>

#include "platform/process.h"
#include "services/path.h"
#include "services/text.h"

OpnProgListRec OpnProgList;

namespace {

struct Association {
  const char* extension;
  const char* key;
};
constexpr Association kAssociations[] = {
    {"txt", "txtfile\\shell\\open\\command"},
    {"cpp", "cfile\\shell\\&Open with MSDev\\command"},
    {"pdf", "PDXFileType\\shell\\Open\\command"},
    // kept: how documents are opened is known, and nothing asks for it.
    {"doc", "DocShortcut\\shell\\open\\command"},
};
constexpr const char* kListed[] = {"txt", "cpp", "pdf"};

// kept: "%SystemRoot%" in an association is C:\WINDOWS, wherever Windows lies.
constexpr char kSystemRoot[] = "%SystemRoot%";
constexpr char kWindowsFolder[] = "C:\\WINDOWS";

void Put(int row, const char* name, const char* folder) {
  OpnTextSet(OpnProgList.progName[row], name);
  OpnTextSet(OpnProgList.progPath[row], folder);
}

void Add(const char* name, const char* folder) {
  if (OpnProgFind(name, folder) >= 0 || OpnProgList.progCount >= kOpnProgRows - 1) return;
  Put(OpnProgList.progCount, name, folder);
  OpnProgList.workCount = ++OpnProgList.progCount;
}

// Cuts the arguments off: at the first double quote or blank behind the first dot.
void CutName(char* name) {
  bool dotSeen = false;
  for (char* at = name; *at != '\0'; ++at) {
    if (IsSjisLead(*at) && at[1] != '\0') {
      ++at;
    } else if (*at == '.') {
      dotSeen = true;
    } else if (dotSeen && (*at == '"' || *at == ' ')) {
      *at = '\0';
      return;
    }
  }
}

// kept: the folder of an associated program keeps the double quote that a quoted command
// begins with.
// kept: an association without a backslash is a row with an empty name, and all of the
// command for its folder.
void AddAssociation(const char* extension) {
  char command[kOpnCommandSize];
  if (!OpnFindAssociation(extension, command, sizeof command)) return;
  PathSplit(command);
  CutName(PathParts.PathName);
  char folder[kPathSplitSize + sizeof kWindowsFolder];
  if (std::strncmp(PathParts.PathFolder, kSystemRoot, sizeof kSystemRoot - 1) == 0) {
    TextFormat(folder, sizeof folder, "%s%s", kWindowsFolder, PathParts.PathFolder + sizeof kSystemRoot - 1);
  } else {
    TextCopy(folder, sizeof folder, PathParts.PathFolder);
  }
  Add(PathParts.PathName, folder);
}

}  // namespace

// kept: the list of programs is made once in a run, and again only after the whole history
// was deleted.
void OpnBuildProgList() {
  if (OpnProgList.built) return;
  OpnProgListForget();
  OpnProgList.built = true;
  for (int row = 0; row < OpnHistory.fileCount; ++row) {
    if (OpnHistory.progName[row][0] != '\0') Add(OpnHistory.progName[row], OpnHistory.progPath[row]);
  }
  for (const char* extension : kListed) AddAssociation(extension);
}

void OpnProgListForget() {
  OpnProgList.progCount = 0;
  OpnProgList.workCount = 0;
  OpnProgList.built = false;
}

int OpnProgFind(const char* name, const char* folder) {
  for (int row = 0; row < OpnProgList.workCount; ++row) {
    if (OpnTextSame(OpnProgList.progName[row], name) && OpnTextSame(OpnProgList.progPath[row], folder)) {
      return row;
    }
  }
  return -1;
}

// kept: when a program is browsed, a program list that was built with more than 199 loses those
// beyond.
bool OpnProgBrowse(const char* name, const char* folder) {
  const int row = OpnProgList.progCount;
  Put(row, name, folder);
  OpnProgList.workCount = std::min(row + 1, kOpnProgMax);
  return row < kOpnProgMax;
}

void OpnProgBrowsedTake() {
  OpnProgList.progCount = OpnProgList.workCount;
}

void OpnProgBrowsedDrop() {
  OpnProgList.workCount = OpnProgList.progCount;
}

void OpnProgToTop(int row) {
  OpnRowToTop(OpnProgList.progName, row);
  OpnRowToTop(OpnProgList.progPath, row);
}

bool OpnFindAssociation(const char* extension, char* command, int size) {
  for (const Association& association : kAssociations) {
    if (std::strcmp(association.extension, extension) != 0) continue;
    if (ClassValue(association.key, command, size)) return true;
  }
  TextCopy(command, static_cast<std::size_t>(size), "なし");
  return false;
}
