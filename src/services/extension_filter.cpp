#include "services/extension_filter.h"

#include <cstring>

#include "platform/dialog.h"
#include "platform/file.h"
#include "services/text.h"

namespace {

constexpr int kExtensionSize = 8;

// kept: the last extension of the row of sources, "*RC", lacks its full stop on show; it counts
// as ".RC".
const char* const kTexts[kFilterRows] = {
    "*.*",   "*.C",   "*.CPP", "*.H",   "*.INC", "*.RC",  "*.C *.CPP *.H *.INC *RC",
    "*.DOC", "*.TXT", "*.XCL", "*.BMP", "*.JPG", "*.WAV", "*.MP3",
    "*.INI", "*.BAT",
};

// What stands behind the first full stop, at most 8 bytes, in capitals. False
// without a full stop.
// kept: the extension of a name with several full stops begins behind the first of them.
bool ExtensionOf(const char* name, char (&extension)[kExtensionSize + 1]) {
  const char* stop = std::strchr(name, '.');
  if (!stop) return false;
  TextCopy(extension, sizeof extension, stop + 1);
  for (char& c : extension) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    if (c == '\0') break;
  }
  return true;
}

bool SameExtension(const char* extension, const char* filter) {
  char wanted[kExtensionSize + 1];
  return ExtensionOf(filter, wanted) && std::strcmp(extension, wanted) == 0;
}

}  // namespace

const char* FilterText(int row) {
  return row >= 0 && row < kFilterRows ? kTexts[row] : "";
}

int FilterFind(const char* text) {
  for (int row = 0; row < kFilterRows; ++row) {
    if (std::strcmp(kTexts[row], text) == 0) return row;
  }
  return -1;
}

void FilterFill(WindowHandle dialog, int comboId) {
  ListClear(dialog, comboId);
  for (const char* text : kTexts) ListAdd(dialog, comboId, text);
}

bool FilterMatch(int row, const char* caller, const char* name) {
  if (row == kFilterAll) return true;
  char extension[kExtensionSize + 1];
  if (!ExtensionOf(name, extension)) return false;
  if (row == kFilterSources) {
    for (int one = 1; one < kFilterSources; ++one) {
      if (SameExtension(extension, kTexts[one])) return true;
    }
    return false;
  }
  if (row == kFilterCaller) return caller && SameExtension(extension, caller);
  return SameExtension(extension, FilterText(row));
}

void FilterListFiles(WindowHandle dialog, int listId, const char* folder, int row, const char* caller) {
  const ListQuiet quiet(dialog, listId);
  ListClear(dialog, listId);
  FolderSetCurrent(folder);
  char pattern[300];
  TextFormat(pattern, sizeof pattern, "%s\\*.*", folder);
  SearchEntry entry;
  const SearchHandle search = SearchFirst(pattern, &entry);
  if (search == kNoSearch) return;
  do {
    const bool listed = (entry.attributes & kAttributeFolder) == 0 && entry.name[0] != '.';
    if (listed && FilterMatch(row, caller, entry.name)) ListAdd(dialog, listId, entry.name);
  } while (SearchNext(search, &entry));
  SearchClose(search);
}
