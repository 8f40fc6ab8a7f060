// List boxes and the lists of combo boxes.
#include <algorithm>
#include <cstring>

#include "platform/cp932.h"
#include "platform/dialog.h"
#include "platform/file.h"
#include "platform/headless/state.h"
#include "platform/posix/posix_paths.h"

namespace {

constexpr std::uint32_t kListSort = 2;
constexpr std::uint32_t kStyleScrollsSideways = 0x00100000;
constexpr int kColumn = 8;  // pixels of a half-width character, which is one byte
constexpr int kRowMargin = 4;
constexpr std::uint32_t kComboSort = 0x100;

bool Sorts(const HeadlessWindow& list) {
  const std::uint32_t bit = list.controlClass == ControlClass::ListBox ? kListSort : kComboSort;
  return (list.style & bit) != 0;
}

// Text for comparing: half-width letters small, whatever stands in a pair.
std::string Folded(const std::string& text) {
  std::string folded = text;
  for (std::size_t i = 0; i < folded.size(); ++i) {
    char& letter = folded[i];
    if (Cp932Leads(letter)) {
      ++i;
    } else if (letter >= 'A' && letter <= 'Z') {
      letter = static_cast<char>(letter - 'A' + 'a');
    }
  }
  return folded;
}

WindowPointer ListUse(WindowHandle dialog, int id, const char* call) {
  const WindowPointer list = ControlUse(dialog, id, call);
  if (!list || HasRows(*list)) return list;
  Failure(Deed(call, dialog, id) + ": the control is no list");
  return nullptr;
}

void Drawn(HeadlessWindow& list) {
  if (list.draws) ++list.drawings;
}

}  // namespace

bool HasRows(const HeadlessWindow& control) {
  return control.controlClass == ControlClass::ListBox || control.controlClass == ControlClass::ComboBox;
}

void RowSelect(const WindowPointer& control, int row) {
  const bool combo = control->controlClass == ControlClass::ComboBox;
  const bool there = row >= 0 && row < static_cast<int>(control->rows.size());
  // A bad row leaves a list box as it was and clears a combo box.
  if (!there && row >= 0 && !combo) return;
  control->selected = there ? row : -1;
  if (combo) control->text = there ? control->rows[static_cast<std::size_t>(row)] : "";
}

void ListClear(WindowHandle dialog, int id) {
  const WindowPointer list = ListUse(dialog, id, "ListClear");
  if (!list) return;
  list->rows.clear();
  list->extent = 0;
  RowSelect(list, -1);
  Drawn(*list);
}

int ListAdd(WindowHandle dialog, int id, const char* text) {
  const WindowPointer list = ListUse(dialog, id, "ListAdd");
  if (!list) return -1;
  const int needed = static_cast<int>(std::strlen(text)) * kColumn + kRowMargin;
  const bool sideways =
      list->controlClass == ControlClass::ListBox && (list->style & kStyleScrollsSideways) != 0;
  if (sideways) list->extent = std::max(list->extent, needed);
  auto at = list->rows.end();
  if (Sorts(*list)) {
    const std::string key = Folded(text);
    at = std::find_if(list->rows.begin(), list->rows.end(),
                      [&](const std::string& row) { return Folded(row) > key; });
  }
  const int row = static_cast<int>(at - list->rows.begin());
  list->rows.insert(at, text);
  if (list->selected >= row) ++list->selected;
  Drawn(*list);
  return row;
}

void ListDraw(WindowHandle dialog, int id, bool on) {
  const WindowPointer list = ListUse(dialog, id, "ListDraw");
  if (!list) return;
  list->draws = on;
  Drawn(*list);
}

int ListDrawings(WindowHandle dialog, int id) {
  const WindowPointer list = ControlAsked(dialog, id, "ListDrawings");
  return list ? list->drawings : 0;
}

int ListExtent(WindowHandle dialog, int id) {
  const WindowPointer list = ControlAsked(dialog, id, "ListExtent");
  return list ? list->extent : 0;
}

int ListCount(WindowHandle dialog, int id) {
  const WindowPointer list = ListUse(dialog, id, "ListCount");
  return list ? static_cast<int>(list->rows.size()) : 0;
}

int ListSelected(WindowHandle dialog, int id) {
  const WindowPointer list = ListUse(dialog, id, "ListSelected");
  return list ? list->selected : -1;
}

void ListSelect(WindowHandle dialog, int id, int row) {
  const WindowPointer list = ListUse(dialog, id, "ListSelect");
  if (list) RowSelect(list, row);
}

int ListText(WindowHandle dialog, int id, int row, char* buffer, int size) {
  if (size <= 0) return -1;
  buffer[0] = '\0';
  const WindowPointer list = ListUse(dialog, id, "ListText");
  if (!list || row < 0 || row >= static_cast<int>(list->rows.size())) return -1;
  const std::string& text = list->rows[static_cast<std::size_t>(row)];
  const std::size_t length = std::min(text.size(), static_cast<std::size_t>(size) - 1);
  std::memcpy(buffer, text.data(), length);
  buffer[length] = '\0';
  return static_cast<int>(length);
}

void ListFolders(WindowHandle dialog, int id) {
  const WindowPointer list = ListUse(dialog, id, "ListFolders");
  if (!list) return;
  char current[4096];
  const int length = FolderGetCurrent(current, sizeof current);
  constexpr int kRootLength = 3;  // "C:\"
  const bool root = length <= kRootLength;
  if (!root) list->rows.emplace_back("[..]");
  std::vector<std::string> names;
  SearchEntry entry;
  const SearchHandle search = SearchFirst("*.*", &entry);
  for (bool more = search != kNoSearch; more; more = SearchNext(search, &entry)) {
    const std::string name = entry.name;
    if ((entry.attributes & kAttributeFolder) == 0 || name == "." || name == "..") continue;
    names.push_back(name);
  }
  SearchClose(search);
  std::sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
    return Folded(a) != Folded(b) ? Folded(a) < Folded(b) : a < b;
  });
  for (const std::string& name : names) list->rows.push_back("[" + name + "]");
  for (const char letter : PosixDrives()) {
    list->rows.push_back(std::string("[-") + static_cast<char>(letter - 'A' + 'a') + "-]");
  }
}

std::vector<std::string> ListRows(WindowHandle dialog, int id) {
  const WindowPointer list = ControlAsked(dialog, id, "ListRows");
  return list ? list->rows : std::vector<std::string>();
}
