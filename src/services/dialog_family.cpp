#include "services/dialog_family.h"

#include "platform/dialog.h"
#include "services/panel_entry.h"
#include "services/state.h"

DialogsState Dialogs;

namespace {

constexpr int kDepth = 8;

// Which handler serves which open dialog of a family; a dialog gets its entry at
// Init.
template <typename Number>
struct Family {
  Number* id;
  WindowHandle* handle;
  bool isMenu;
  EventHandler next;  // the handler of the dialog about to be made
  struct {
    WindowHandle window;
    EventHandler handler;
    Number id;
  } open[kDepth];
};

Family<MenuDialog> menuFamily{&Dialogs.DlgIdMenu, &Dialogs.hMenuDlg, true, nullptr, {}};
Family<ToolDialog> toolFamily{&Dialogs.DlgIdTool, &Dialogs.hToolDlg, false, nullptr, {}};
Family<SubDialog> subFamily{&Dialogs.DlgIdSub, &Dialogs.hSubDlg, false, nullptr, {}};
Family<SnryDialog> snryFamily{&Dialogs.DlgIdSnry, &Dialogs.hSnryDlg, false, nullptr, {}};

template <typename Number>
void Forget(Family<Number>& family) {
  family.next = nullptr;
  for (auto& entry : family.open) entry = {};
}

template <typename Number>
EventHandler HandlerOf(const Family<Number>& family, WindowHandle window) {
  for (const auto& entry : family.open) {
    if (entry.window == window) return entry.handler;
  }
  return nullptr;
}

template <typename Number>
void End(Family<Number>& family, WindowHandle dialog, int result) {
  if (family.isMenu) PanelStateClear();
  if (*family.handle == dialog) *family.handle = nullptr;
  DialogEnd(dialog, result);
}

template <typename Number>
bool Proc(Family<Number>& family, const Event& event) {
  if (event.kind == EventKind::Init) {
    for (auto& entry : family.open) {
      if (entry.window) continue;
      entry = {event.window, family.next, *family.id};
      break;
    }
    *family.handle = event.window;
  }
  const EventHandler handler = HandlerOf(family, event.window);
  bool done = handler && handler(event);
  if (!done && EndIsAsked(event)) {
    End(family, event.window, IsPressed(event, 1) ? 1 : 2);
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

// A dialog has ended: the one of the same family that it opened from is in force again,
// or else none.
template <typename Number>
void TakeOuter(Family<Number>& family) {
  *family.id = Number::None;
  for (const auto& entry : family.open) {
    if (!entry.window) continue;
    *family.id = entry.id;
    *family.handle = entry.window;
  }
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

template <typename Number>
int Run(Family<Number>& family, EventHandler proc, Number dialog, int templateId, WindowHandle owner,
        EventHandler handler, void* context) {
  *family.id = dialog;
  family.next = handler;
  const int result = DialogRun(templateId, owner, proc, context);
  TakeOuter(family);
  return result;
}

// --- Dialogs of no family

struct PlainDialog {
  EventHandler handler;
  void* context;
};

bool PlainDlgProc(const Event& event) {
  const auto& plain = *static_cast<const PlainDialog*>(event.context);
  Event own = event;
  own.context = plain.context;
  if (plain.handler(own)) return true;
  if (!EndIsAsked(event)) return false;
  DialogEnd(event.window, IsPressed(event, kOkButton) ? kOkButton : kCancelButton);
  return true;
}

}  // namespace

void DialogsReset() {
  StateReset(Dialogs);
  Forget(menuFamily);
  Forget(toolFamily);
  Forget(subFamily);
  Forget(snryFamily);
}

bool FamilyDialogIsUp() {
  return Dialogs.hMenuDlg || Dialogs.hToolDlg || Dialogs.hSubDlg || Dialogs.hSnryDlg || Dialogs.plain > 0;
}

int MenuDialogRun(MenuDialog dialog, int templateId, WindowHandle owner, EventHandler handler,
                  void* context) {
  return Run(menuFamily, MenuDlgProc, dialog, templateId, owner, handler, context);
}
int ToolDialogRun(ToolDialog dialog, int templateId, WindowHandle owner, EventHandler handler,
                  void* context) {
  return Run(toolFamily, ToolDlgProc, dialog, templateId, owner, handler, context);
}
int SubDialogRun(SubDialog dialog, int templateId, WindowHandle owner, EventHandler handler, void* context) {
  return Run(subFamily, SubDlgProc, dialog, templateId, owner, handler, context);
}
int SnryDialogRun(SnryDialog dialog, int templateId, WindowHandle owner, EventHandler handler,
                  void* context) {
  return Run(snryFamily, SnryDlgProc, dialog, templateId, owner, handler, context);
}

int PlainDialogRun(int templateId, WindowHandle owner, EventHandler handler, void* context) {
  PlainDialog plain{handler, context};
  ++Dialogs.plain;
  const int result = DialogRun(templateId, owner, PlainDlgProc, &plain);
  --Dialogs.plain;
  return result;
}

bool PlainSheetRun(WindowHandle owner, const char* caption, const SheetPage* pages, int count) {
  ++Dialogs.plain;
  const bool taken = SheetRun(owner, caption, pages, count);
  --Dialogs.plain;
  return taken;
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
