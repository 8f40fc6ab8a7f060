#include "services/dialog_family.h"

#include "platform/dialog.h"
#include "shell/panel.h"

DialogsState Dialogs;

namespace {

constexpr int kDepth = 8;

// Which handler serves which open dialog of a family; a dialog gets its entry at
// Init.
struct Family {
  int* id;
  WindowHandle* handle;
  bool isMenu;
  EventHandler next;  // the handler of the dialog about to be made
  struct {
    WindowHandle window;
    EventHandler handler;
  } open[kDepth];
};

Family menuFamily{&Dialogs.DlgIdMenu, &Dialogs.hMenuDlg, true, nullptr, {}};
Family toolFamily{&Dialogs.DlgIdTool, &Dialogs.hToolDlg, false, nullptr, {}};
Family subFamily{&Dialogs.DlgIdSub, &Dialogs.hSubDlg, false, nullptr, {}};
Family snryFamily{&Dialogs.DlgIdSnry, &Dialogs.hSnryDlg, false, nullptr, {}};

EventHandler HandlerOf(const Family& family, WindowHandle window) {
  for (const auto& entry : family.open) {
    if (entry.window == window) return entry.handler;
  }
  return nullptr;
}

void End(Family& family, WindowHandle dialog, int result) {
  if (family.isMenu) Panel.MenuPanelState = 0;
  if (*family.handle == dialog) *family.handle = nullptr;
  DialogEnd(dialog, result);
}

bool Proc(Family& family, const Event& event) {
  if (event.kind == EventKind::Init) {
    for (auto& entry : family.open) {
      if (entry.window) continue;
      entry = {event.window, family.next};
      break;
    }
    *family.handle = event.window;
  }
  const EventHandler handler = HandlerOf(family, event.window);
  bool done = handler && handler(event);
  if (!done && EndIsAsked(event)) {
    End(family, event.window, event.command == 1 ? 1 : 2);
    done = true;
  }
  if (event.kind == EventKind::Destroy) {
    if (*family.handle == event.window) *family.handle = nullptr;
    for (auto& entry : family.open) {
      if (entry.window == event.window) entry = {};
    }
  }
  return done;
}

bool MenuDlgProc(const Event& event) {
  return Proc(menuFamily, event);
}
bool ToolDlgProc(const Event& event) {
  return Proc(toolFamily, event);
}
bool SubDlgProc(const Event& event) {
  return Proc(subFamily, event);
}
bool SnryDlgProc(const Event& event) {
  return Proc(snryFamily, event);
}

int Run(Family& family, EventHandler proc, int dlgId, int templateId, WindowHandle owner,
        EventHandler handler) {
  *family.id = dlgId;
  family.next = handler;
  const int result = DialogRun(templateId, owner, proc);
  *family.id = 0;
  return result;
}

}  // namespace

int MenuDialogRun(int dlgId, int templateId, WindowHandle owner, EventHandler handler) {
  return Run(menuFamily, MenuDlgProc, dlgId, templateId, owner, handler);
}
int ToolDialogRun(int dlgId, int templateId, WindowHandle owner, EventHandler handler) {
  return Run(toolFamily, ToolDlgProc, dlgId, templateId, owner, handler);
}
int SubDialogRun(int dlgId, int templateId, WindowHandle owner, EventHandler handler) {
  return Run(subFamily, SubDlgProc, dlgId, templateId, owner, handler);
}
int SnryDialogRun(int dlgId, int templateId, WindowHandle owner, EventHandler handler) {
  return Run(snryFamily, SnryDlgProc, dlgId, templateId, owner, handler);
}

void MenuDialogEnd(WindowHandle dialog, int result) {
  End(menuFamily, dialog, result);
}
void ToolDialogEnd(WindowHandle dialog, int result) {
  End(toolFamily, dialog, result);
}
void SubDialogEnd(WindowHandle dialog, int result) {
  End(subFamily, dialog, result);
}
void SnryDialogEnd(WindowHandle dialog, int result) {
  End(snryFamily, dialog, result);
}
