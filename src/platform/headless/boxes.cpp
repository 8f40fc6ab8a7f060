// Message boxes, popup menus, string resources and the system's file dialogs.
#include <algorithm>
#include <cstring>
#include <deque>

#include "platform/dialog.h"
#include "platform/headless/free_user.h"
#include "platform/headless/state.h"
#include "platform/window.h"

namespace {

struct ExpectedBox {
  std::string text;
  std::string caption;
  BoxAnswer answer;
  std::function<void()> meanwhile;
};
struct ExpectedMenu {
  int menuId;
  std::uint32_t command;
  std::function<void()> meanwhile;
};

std::deque<ExpectedBox> expectedBoxes;
struct ExpectedFile {
  std::string path;
  std::function<void()> meanwhile;
};
std::deque<ExpectedFile> expectedFiles;
std::deque<ExpectedMenu> expectedMenus;
bool menuIsUp = false;
bool fileDialogIsUp = false;
std::vector<Box> boxesShown;
std::vector<FileDialogCall> fileDialogs;

std::string Told(const std::string& text, const std::string& caption) {
  return Quoted(text) + " titled " + Quoted(caption);
}

// What Escape answers.
BoxAnswer Harmless(BoxButtons buttons) {
  switch (buttons) {
    case BoxButtons::OkCancel:
      return BoxAnswer::Cancel;
    case BoxButtons::YesNo:
      return BoxAnswer::No;
    default:
      return BoxAnswer::Ok;
  }
}

bool Offers(BoxButtons buttons, BoxAnswer answer) {
  switch (buttons) {
    case BoxButtons::OkCancel:
      return answer == BoxAnswer::Ok || answer == BoxAnswer::Cancel;
    case BoxButtons::YesNo:
      return answer == BoxAnswer::Yes || answer == BoxAnswer::No;
    default:
      return answer == BoxAnswer::Ok;
  }
}

int CopyOut(const std::string& text, char* buffer, int size) {
  if (size <= 0) return 0;
  const std::size_t length = std::min(text.size(), static_cast<std::size_t>(size) - 1);
  std::memcpy(buffer, text.data(), length);
  buffer[length] = '\0';
  return static_cast<int>(length);
}

const ResourceMenuItem* FindCommand(const std::vector<ResourceMenuItem>& items, std::uint32_t command) {
  for (const ResourceMenuItem& item : items) {
    if (!item.isPopup && !item.separator && item.command == command) return &item;
    if (const ResourceMenuItem* inside = FindCommand(item.items, command)) return inside;
  }
  return nullptr;
}

void FileDialogShow(const WindowPointer& owner, const std::function<void()>& meanwhile) {
  if (!meanwhile) return;
  const bool enabled = owner && owner->enabled;
  if (owner) owner->enabled = false;
  fileDialogIsUp = true;
  PaintDue();
  meanwhile();
  fileDialogIsUp = false;
  if (enabled) owner->enabled = true;
}

bool FileDialogRun(const FileDialogCall& call, char* path, int size) {
  const WindowPointer owner = OwnerOf(call.owner, "the owner of a file dialog");
  fileDialogs.push_back(call);
  if (expectedFiles.empty() && freeUser) {
    const std::string chosen = freeUser->File(call);
    return !chosen.empty() && CopyOut(chosen, path, size) == static_cast<int>(chosen.size());
  }
  if (expectedFiles.empty()) {
    Failure("nobody expected the file dialog " + Quoted(call.title));
    return false;
  }
  const ExpectedFile expected = expectedFiles.front();
  expectedFiles.pop_front();
  FileDialogShow(owner, expected.meanwhile);
  const std::string& chosen = expected.path;
  if (chosen.empty()) return false;
  if (static_cast<int>(chosen.size()) >= size) {
    Failure("the path " + Quoted(chosen) + " does not fit the caller's buffer");
    return false;
  }
  CopyOut(chosen, path, size);
  return true;
}

// The free user's answer to the box that has come last, with its owner disabled meanwhile.
BoxAnswer FreeAnswer(const WindowPointer& owner) {
  const bool enabled = owner && owner->enabled;
  if (owner) owner->enabled = false;
  const Box box = boxesShown.back();
  const BoxAnswer answer = freeUser->Answer(box);
  if (enabled) owner->enabled = true;
  if (!Offers(box.buttons, answer)) Failure("the box " + Told(box.text, box.caption) + " has no such button");
  return answer;
}

void CommandsOf(const std::vector<ResourceMenuItem>& items, std::vector<std::uint32_t>& commands) {
  for (const ResourceMenuItem& item : items) {
    if (!item.isPopup && !item.separator && !item.grayed) commands.push_back(item.command);
    CommandsOf(item.items, commands);
  }
}

// What comes of a chosen entry.
std::uint32_t MenuChosen(WindowHandle window, std::uint32_t command, bool asCommand) {
  if (command != 0 && !asCommand) SendCommand(window, command);
  return asCommand ? command : 0;
}

std::uint32_t FreeMenu(const std::vector<ResourceMenuItem>& items, WindowHandle window, bool asCommand) {
  std::vector<std::uint32_t> commands;
  CommandsOf(items, commands);
  menuIsUp = true;
  const std::uint32_t command = freeUser->Entry(commands);
  if (!menuIsUp) return 0;
  menuIsUp = false;
  return MenuChosen(window, command, asCommand);
}

}  // namespace

BoxAnswer MessageBoxRun(WindowHandle owner, const char* text, const char* caption, BoxButtons buttons,
                        BoxIcon icon) {
  boxesShown.push_back({text, caption, buttons, icon, owner});
  const WindowPointer ownerWindow = OwnerOf(owner, "the owner of a message box");
  if (expectedBoxes.empty() && freeUser) return FreeAnswer(ownerWindow);
  if (expectedBoxes.empty()) {
    Failure("nobody expected the box " + Told(text, caption));
    return Harmless(buttons);
  }
  const ExpectedBox expected = expectedBoxes.front();
  expectedBoxes.pop_front();
  if (expected.text != text || expected.caption != caption) {
    Failure("the box " + Told(text, caption) + " came, expected was " +
            Told(expected.text, expected.caption));
    return Harmless(buttons);
  }
  if (!Offers(buttons, expected.answer)) {
    Failure("the box " + Told(text, caption) + " has no such button");
    return Harmless(buttons);
  }
  const bool enabled = ownerWindow && ownerWindow->enabled;
  if (ownerWindow) ownerWindow->enabled = false;
  if (expected.meanwhile) {
    PaintDue();
    expected.meanwhile();
  }
  if (enabled) ownerWindow->enabled = true;
  return expected.answer;
}

void ExpectBox(const char* text, const char* caption, BoxAnswer answer, std::function<void()> meanwhile) {
  expectedBoxes.push_back({text, caption, answer, std::move(meanwhile)});
}

int BoxesLeft() {
  return static_cast<int>(expectedBoxes.size());
}

const std::vector<Box>& BoxesShown() {
  return boxesShown;
}

std::uint32_t MenuPopup(int menuId, WindowHandle window, int x, int y, bool asCommand) {
  (void)x;
  (void)y;
  if (!WindowUse(window, "MenuPopup")) return 0;
  const std::string name = "the popup menu " + std::to_string(menuId);
  const auto menu = Resources().menus.find(menuId);
  if (menu == Resources().menus.end() || menu->second.empty() || !menu->second[0].isPopup) {
    Failure(name + " is not in the resources");
    return 0;
  }
  if (expectedMenus.empty() && freeUser) return FreeMenu(menu->second[0].items, window, asCommand);
  if (expectedMenus.empty() || expectedMenus.front().menuId != menuId) {
    Failure("nobody expected " + name);
    return 0;
  }
  const ExpectedMenu expected = expectedMenus.front();
  expectedMenus.pop_front();
  menuIsUp = true;
  if (expected.meanwhile) expected.meanwhile();
  if (!menuIsUp) return 0;
  menuIsUp = false;
  const std::uint32_t command = expected.command;
  if (command == 0) return 0;
  const ResourceMenuItem* item = FindCommand(menu->second[0].items, command);
  if (!item || item->grayed) {
    Failure(name + " does not offer " + std::to_string(command));
    return 0;
  }
  return MenuChosen(window, command, asCommand);
}

void MenuPopupEnd() {
  menuIsUp = false;
}

void ExpectMenu(int menuId, std::uint32_t command, std::function<void()> meanwhile) {
  expectedMenus.push_back({menuId, command, std::move(meanwhile)});
}

int StringLoad(int id, char* buffer, int size) {
  const auto at = Resources().strings.find(id);
  return CopyOut(at == Resources().strings.end() ? std::string() : at->second, buffer, size);
}

bool FileDialogLoad(WindowHandle owner, const char* title, const char* filterText, const char* mask,
                    const char* startFolder, char* path, int size) {
  return FileDialogRun({false, title, filterText, mask, startFolder ? startFolder : "", path, owner}, path,
                       size);
}

bool FileDialogSave(WindowHandle owner, const char* title, const char* filterText, const char* mask,
                    const char* startFolder, char* path, int size) {
  return FileDialogRun({true, title, filterText, mask, startFolder ? startFolder : "", path, owner}, path,
                       size);
}

void ExpectFileDialog(const char* path, std::function<void()> meanwhile) {
  expectedFiles.push_back({path, std::move(meanwhile)});
}

bool FileDialogIsUp() {
  return fileDialogIsUp;
}

const std::vector<FileDialogCall>& FileDialogsShown() {
  return fileDialogs;
}

int DialogsExpected() {
  return static_cast<int>(expectedFiles.size() + expectedMenus.size());
}

void BoxesReset() {
  expectedBoxes.clear();
  expectedFiles.clear();
  expectedMenus.clear();
  menuIsUp = false;
  boxesShown.clear();
  fileDialogs.clear();
}
