#include "services/sound_list.h"

#include <cstring>

#include "platform/dialog.h"
#include "platform/file.h"
#include "services/program.h"

void SoundListShow(WindowHandle dialog, int list, const char (&chosen)[kSoundNameSize]) {
  const ListQuiet quiet(dialog, list);
  ListClear(dialog, list);
  char pattern[kRootPathSize];
  RootPath(pattern, sizeof pattern, "\\サウンド\\*.*");
  SearchEntry entry;
  const SearchHandle search = SearchFirst(pattern, &entry);
  for (bool more = search != kNoSearch; more; more = SearchNext(search, &entry)) {
    if ((entry.attributes & kAttributeFolder) == 0) ListAdd(dialog, list, entry.name);
  }
  SearchClose(search);
  const int count = ListCount(dialog, list);
  for (int row = 0; row < count; ++row) {
    char name[kSoundNameSize];
    ListText(dialog, list, row, name, sizeof name);
    if (std::strncmp(name, chosen, sizeof name) == 0) ListSelect(dialog, list, row);
  }
}

void SoundListTake(WindowHandle dialog, int list, char (&name)[kSoundNameSize]) {
  char text[kSoundNameSize] = {};
  if (ListText(dialog, list, ListSelected(dialog, list), text, sizeof text) <= 0) return;
  std::memcpy(name, text, sizeof name);
}
