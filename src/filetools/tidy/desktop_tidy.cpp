#include "filetools/tidy/desktop_tidy.h"

#include <cstring>

#include "platform/dialog.h"
#include "platform/file.h"
#include "services/state.h"
#include "services/text.h"

TidyState Tidy;

namespace {

// Goes to a folder, which is made if it is not there. False if that fails too.
// kept: tidying the desktop leaves the tidy folder as the current one.
// settled: a tidy folder that was made becomes the current one like one that was there, so
// that the folder of an earlier run is free to be moved.
bool EnsureFolder(const char* path) {
  if (FolderSetCurrent(path)) return true;
  if (!FolderCreate(path)) return false;
  FolderSetCurrent(path);
  return true;
}

BoxAnswer Ask(WindowHandle owner, const char* format, const char* name, const char* caption) {
  char text[320];
  TextFormat(text, sizeof text, format, name);
  return MessageBoxRun(owner, text, caption, BoxButtons::YesNo, BoxIcon::Question);
}

// Moves an item of the desktop into its folder. bounded: an item of the desktop whose path does not
// fit is not moved.
bool MoveItem(const char* name) {
  TextCopy(Tidy.tidyTargetPath, sizeof Tidy.tidyTargetPath, Tidy.tidyBasePath);
  if (Tidy.tidySplitByExt != 0) {
    const char* extension = "";
    const int kind = TidyClassify(name, Tidy.tidyFoundAttributes, &extension);
    TidyTargetFolder(kind, extension);
    EnsureFolder(Tidy.tidyTargetPath);
  }
  constexpr int kSize = kTidyPathSize + 264;
  char from[kSize];
  char to[kSize];
  TextFormat(from, sizeof from, "%s\\%s", Tidy.desktopPath, name);
  TextFormat(to, sizeof to, "%s\\%s", Tidy.tidyTargetPath, name);
  return FileMove(from, to);
}

}  // namespace

void TidyReset() {
  StateReset(Tidy);
}

bool TidyNthItem(int n, char (&name)[260]) {
  if (Tidy.desktopPath[0] == '\0') return false;
  char pattern[kTidyPathSize + 8];
  TextFormat(pattern, sizeof pattern, "%s\\*.*", Tidy.desktopPath);
  SearchEntry entry;
  const SearchHandle search = SearchFirst(pattern, &entry);
  if (search == kNoSearch) return false;
  bool found = false;
  do {
    if (entry.name[0] != '.') found = n-- == 0;
  } while (!found && SearchNext(search, &entry));
  SearchClose(search);
  if (!found) return false;
  TextCopy(name, sizeof name, entry.name);
  Tidy.tidyFoundAttributes = entry.attributes;
  return true;
}

int TidyRun(WindowHandle owner) {
  Tidy.desktopPath[0] = '\0';
  if (!FolderDesktop(Tidy.desktopPath, kTidyPathSize - kTidyNameSize - 1)) Tidy.desktopPath[0] = '\0';
  if (Tidy.tidyFolderName[0] == '\0') {
    TextCopy(Tidy.tidyFolderName, sizeof Tidy.tidyFolderName, TidyState{}.tidyFolderName);
  }
  // settled: without a desktop there is nothing to find, and no tidy folder is made.
  if (Tidy.desktopPath[0] == '\0') return 0;
  TextFormat(Tidy.tidyBasePath, sizeof Tidy.tidyBasePath, "%s\\%s", Tidy.desktopPath, Tidy.tidyFolderName);
  // kept: a tidy folder that cannot be made ends the run without a word.
  if (!EnsureFolder(Tidy.tidyBasePath)) return -1;
  char name[260];
  int n = 0;
  // The search begins anew for every item, so that it stays right while items go.
  while (TidyNthItem(n, name)) {
    const bool isFolder = (Tidy.tidyFoundAttributes & kAttributeFolder) != 0;
    if (isFolder && std::strcmp(name, Tidy.tidyFolderName) == 0) {
      ++n;
      continue;
    }
    if (Ask(owner, "%s を整理します", name, "Desktop整理") != BoxAnswer::Yes) {
      ++n;
      continue;
    }
    if (MoveItem(name)) continue;  // the next item has moved up to n
    if (Ask(owner, "%s を移動できません。処理を中止しますか", name, "Desktop整理エラー") == BoxAnswer::Yes) {
      return -2;
    }
    ++n;
  }
  return 0;
}

int TidyClassify(const char* name, std::uint32_t attributes, const char** extension) {
  *extension = "";
  if ((attributes & kAttributeFolder) != 0) return 1;
  for (const char* at = name; *at != '\0'; ++at) {
    if (*at == '.') *extension = at + 1;
    if (*at == '\\') *extension = "";
    if (IsSjisLead(*at) && at[1] != '\0') ++at;
  }
  const auto length = static_cast<int>(std::strlen(*extension));
  return length == 0 ? 0 : length + 1;
}

// kept: the tidying by extension, which nothing switches on, gives folders to extensions of
// one letter only; its folder of shortcuts is out of reach, and files with longer extensions
// stay in the tidy folder itself.
void TidyTargetFolder(int kind, const char* extension) {
  TextCopy(Tidy.tidyTargetPath, sizeof Tidy.tidyTargetPath, Tidy.tidyBasePath);
  char part[kTidyNameSize] = "";
  if (kind == 0) TextCopy(part, sizeof part, "\\拡張子なし");
  if (kind == 1) TextCopy(part, sizeof part, "\\フォルダー");
  if (kind == 2 && std::strcmp(extension, "lnk") == 0) {
    TextCopy(part, sizeof part, "\\ショートカット");
  } else if (kind == 2) {
    TextFormat(part, sizeof part, "\\%s", extension);
  }
  TextAppend(Tidy.tidyTargetPath, sizeof Tidy.tidyTargetPath, part);
}
