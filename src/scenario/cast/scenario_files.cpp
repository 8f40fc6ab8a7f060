#include "scenario/cast/scenario_files.h"

#include <cstring>

#include "platform/dialog.h"
#include "platform/file.h"
#include "scenario/storage/snry_paths.h"
#include "services/text.h"

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
  char pattern[kSnryLongPath];
  SnryMainPart(pattern, sizeof pattern, part);
  TextAppend(pattern, sizeof pattern, "\\*.*");
  SearchEntry entry;
  const SearchHandle search = SearchFirst(pattern, &entry);
  for (bool more = search != kNoSearch; more; more = SearchNext(search, &entry)) {
    if (ScenarioFileFits(entry.name, entry.attributes, extension)) ListAdd(dialog, list, entry.name);
  }
  SearchClose(search);
}
