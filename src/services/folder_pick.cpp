#include "services/folder_pick.h"

#include <cstring>

#include "platform/window.h"
#include "services/dialog_family.h"
#include "services/folder_list.h"
#include "services/text.h"

FolderPickState FolderPick;

namespace {

constexpr int kMargin = 12;
// The list takes this share of the height.
constexpr int kListPart = 120;
constexpr int kListWhole = 190;

void Open(WindowHandle dialog) {
  const Rect client = WindowClientRect(dialog);
  const int top = FolderListTop(dialog);
  const Rect place{kMargin, top, client.right - kMargin, top + client.bottom * kListPart / kListWhole};
  FolderListOpenWide(FolderPick.folders, dialog, place, FolderPick.folderOnShow, "", nullptr);
}

bool Handle(const Event& event) {
  if (FolderListEvent(FolderPick.folders, event)) return true;
  if (FolderListIsCancel(event)) {
    ToolDialogEnd(event.window, 2);
    return true;
  }
  if (event.kind == EventKind::Init) Open(event.window);
  if (event.kind == EventKind::Paint) FolderListPaint(FolderPick.folders);
  return event.kind == EventKind::Init || event.kind == EventKind::Paint;
}

}  // namespace

// settled: one of these dialogs at a time, as their folder is one; a command from outside
// opens none over another.
int FolderPickRun(ToolDialog number, int templateId, WindowHandle owner, char* folder, int size) {
  if (FolderPick.active) return 0;
  FolderPick.active = true;
  const int result = ToolDialogRun(number, templateId, owner, Handle);
  FolderPick.active = false;
  if (result != 1) return 0;
  if (FolderPick.folderOnShow[0] == '\0') return 0;  // where it stood could not be told
  const bool driveRoot =
      std::strcmp(FolderPick.folderOnShow + TextPrefix(FolderPick.folderOnShow, 1), ":\\") == 0;
  if (driveRoot) FolderPick.folderOnShow[2] = '\0';
  TextCopy(folder, static_cast<std::size_t>(size), FolderPick.folderOnShow);
  return 1;
}
