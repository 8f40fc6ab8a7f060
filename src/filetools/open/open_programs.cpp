#include "filetools/open/open_programs.h"

#include <cstring>

#include "filetools/open/open_choice.h"
#include "filetools/open/open_text.h"
#include "platform/process.h"
#include "services/path.h"
#include "services/text.h"

OpnProgListRec OpnProgList;
bool OpnProgListBuilt;

namespace {

struct Association {
  const char* extension;
  const char* key;
};
constexpr Association kAssociations[] = {
    {"txt", "txtfile\\shell\\open\\command"},
    {"cpp", "cfile\\shell\\&Open with MSDev\\command"},
    {"pdf", "PDXFileType\\shell\\Open\\command"},
    {"doc", "DocShortcut\\shell\\open\\command"},
};
constexpr const char* kListed[] = {"txt", "cpp", "pdf"};

constexpr char kSystemRoot[] = "%SystemRoot%";
constexpr char kWindowsFolder[] = "C:\\WINDOWS";

void Add(const char* name, const char* folder) {
  if (OpnProgFind(name, folder, OpnProgList.progCount) >= 0 || OpnProgList.progCount >= kOpnProgRows - 1) {
    return;
  }
  OpnTextSet(OpnProgList.progName[OpnProgList.progCount], name);
  OpnTextSet(OpnProgList.progPath[OpnProgList.progCount], folder);
  ++OpnProgList.progCount;
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

// kept: a folder keeps the double quote that a quoted command begins with.
void AddAssociation(const char* extension) {
  char command[kOpnCommandSize];
  if (!OpnFindAssociation(extension, command, sizeof command)) return;
  PathSplit(command);
  CutName(PathParts.PathName);
  if (PathParts.PathName[0] == '\0') return;  // no backslash in it: no folder to start it from
  char folder[kPathSplitSize + sizeof kWindowsFolder];
  if (std::strncmp(PathParts.PathFolder, kSystemRoot, sizeof kSystemRoot - 1) == 0) {
    TextFormat(folder, sizeof folder, "%s%s", kWindowsFolder, PathParts.PathFolder + sizeof kSystemRoot - 1);
  } else {
    TextCopy(folder, sizeof folder, PathParts.PathFolder);
  }
  Add(PathParts.PathName, folder);
}

}  // namespace

void OpnBuildProgList() {
  if (OpnProgListBuilt) return;
  OpnProgListBuilt = true;
  OpnProgList.progCount = 0;
  for (int row = 0; row < OpnHistory.fileCount; ++row) {
    if (OpnHistory.progName[row][0] != '\0') Add(OpnHistory.progName[row], OpnHistory.progPath[row]);
  }
  for (const char* extension : kListed) AddAssociation(extension);
  OpnWork.progCount = OpnProgList.progCount;
}

int OpnProgFind(const char* name, const char* folder, int count) {
  for (int row = 0; row < count && row < kOpnProgRows; ++row) {
    if (OpnTextSame(OpnProgList.progName[row], name) && OpnTextSame(OpnProgList.progPath[row], folder)) {
      return row;
    }
  }
  return -1;
}

bool OpnFindAssociation(const char* extension, char* command, int size) {
  for (const Association& association : kAssociations) {
    if (std::strcmp(association.extension, extension) != 0) continue;
    if (ClassValue(association.key, command, size)) return true;
  }
  TextCopy(command, static_cast<std::size_t>(size), "なし");
  return false;
}
