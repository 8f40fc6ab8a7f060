// Property sheets in memory: a modal window whose own handler serves the buttons, with the
// pages that have been shown as windows of it.
#include "platform/sheet.h"

#include <vector>

#include "platform/dialog.h"
#include "platform/headless/free_user.h"
#include "platform/headless/state.h"
#include "platform/posix/faults.h"
#include "platform/window.h"

namespace {

struct Sheet {
  WindowHandle window = nullptr;
  std::vector<SheetPage> pages;
  std::vector<WindowHandle> made;  // null: not shown yet
  bool ok = false;
};
std::vector<Sheet*> sheets;  // that are up, the innermost last

Sheet* SheetOf(WindowHandle window) {
  for (Sheet* sheet : sheets) {
    if (sheet->window == window) return sheet;
  }
  return nullptr;
}

void Apply(Sheet& sheet) {
  for (std::size_t i = 0; i < sheet.made.size(); ++i) {
    if (!sheet.made[i]) continue;
    Event event;
    event.kind = EventKind::Apply;
    event.window = sheet.made[i];
    EventSend(event);
  }
  ControlEnable(sheet.window, kSheetApplyButton, false);
}

void Show(Sheet& sheet, int page) {
  const auto at = static_cast<std::size_t>(page);
  for (const WindowHandle other : sheet.made) {
    if (other) WindowShow(other, false);
  }
  if (!sheet.made[at]) sheet.made[at] = SheetPageMake(sheet.window, sheet.pages[at]);
  if (sheet.made[at]) WindowShow(sheet.made[at], true);
}

bool Handle(const Event& event) {
  Sheet& sheet = *static_cast<Sheet*>(event.context);
  if (event.kind == EventKind::Init) {
    sheet.window = event.window;
    sheets.push_back(&sheet);
    Show(sheet, 0);
  } else if (IsPressed(event, kSheetApplyButton)) {
    Apply(sheet);
  } else if (IsPressed(event, kOkButton)) {
    Apply(sheet);
    sheet.ok = true;
    DialogEnd(event.window, kOkButton);
  } else if (IsPressed(event, kCancelButton)) {
    DialogEnd(event.window, kCancelButton);
  } else {
    return false;
  }
  return true;
}

}  // namespace

bool SheetRun(WindowHandle owner, const char* caption, const SheetPage* pages, int count) {
  if (count < 1 || count > kSheetPageMax) return false;
  Sheet sheet;
  sheet.pages.assign(pages, pages + count);
  sheet.made.assign(static_cast<std::size_t>(count), nullptr);
  SheetWindowRun(owner, caption, Handle, &sheet);
  std::erase(sheets, &sheet);
  return sheet.ok;
}

void SheetChanged(WindowHandle page) {
  const WindowPointer found = WindowUse(page, "SheetChanged");
  if (!found || !SheetOf(found->parent)) {
    Failure("SheetChanged: the window is no page of a sheet");
    return;
  }
  ControlEnable(found->parent, kSheetApplyButton, true);
}

void SheetPageChoose(int page) {
  Sheet* sheet = SheetOf(TopDialog());
  if (!sheet || page < 0 || page >= static_cast<int>(sheet->pages.size())) {
    Failure("SheetPageChoose: there is no page " + std::to_string(page));
    return;
  }
  Show(*sheet, page);
}

WindowHandle SheetPageOnShow() {
  const Sheet* sheet = SheetOf(TopDialog());
  if (!sheet) return nullptr;
  for (const WindowHandle page : sheet->made) {
    if (IsVisible(page)) return page;
  }
  return nullptr;
}

int SheetPageCount() {
  const Sheet* sheet = SheetOf(TopDialog());
  return sheet ? static_cast<int>(sheet->pages.size()) : 0;
}

void SheetsReset() {
  sheets.clear();
}
