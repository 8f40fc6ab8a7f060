#include "scenario/cast/scenario_files.h"

#include <cstring>

#include "platform/dialog.h"
#include "platform/file.h"
#include "scenario/storage/snry_paths.h"
#include "services/text.h"

namespace {

// Goes through the files of a folder until `ends` says so about a name. True if it did.
template <class Ends>
bool WalkFiles(const char* part, const char* extension, Ends ends) {
  char pattern[kSnryLongPath];
  SnryMainPart(pattern, sizeof pattern, part);
  TextAppend(pattern, sizeof pattern, "\\*.*");
  SearchEntry entry;
  bool ended = false;
  const SearchHandle search = SearchFirst(pattern, &entry);
  for (bool more = search != kNoSearch; more && !ended; more = SearchNext(search, &entry)) {
    ended = ScenarioFileFits(entry.name, entry.attributes, extension) && ends(entry.name);
  }
  SearchClose(search);
  return ended;
}

}  // namespace

// kept: the extension of a background or a sound of a scenario must be in small letters.
bool ScenarioFileFits(const char* name, unsigned attributes, const char* extension) {
  if ((attributes & kAttributeFolder) != 0 || name[0] == '.') return false;
  const char* stop = std::strrchr(name, '.');
  return stop && std::strcmp(stop + 1, extension) == 0;
}

void ScenarioFilesShow(WindowHandle dialog, int list, const char* part, const char* extension,
                       const char* first) {
  const ListQuiet quiet(dialog, list);
  ListClear(dialog, list);
  if (first) ListAdd(dialog, list, first);
  WalkFiles(part, extension, [&](const char* name) {
    ListAdd(dialog, list, name);
    return false;
  });
}

bool ScenarioFileIsThere(const char* name, const char* part, const char* extension) {
  return WalkFiles(part, extension, [name](const char* found) { return std::strcmp(found, name) == 0; });
}
