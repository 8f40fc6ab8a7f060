// The four families of modal dialogs. Each has an id of the template in force
// and a handle; a dialog that opens from inside another is of another family, so
// that both can be asked for. One that opens from inside its own family takes id and
// handle over for as long as it is open. Dialogs of no family, and property sheets, are
// counted, so that it is known when one is up.
#pragma once

#include "platform/event.h"
#include "platform/sheet.h"
#include "services/commands.h"
#include "services/dialog_numbers.h"

struct DialogsState {
  WindowHandle hMenuDlg = nullptr;  // the open dialog of each family
  WindowHandle hToolDlg = nullptr;
  WindowHandle hSubDlg = nullptr;
  WindowHandle hSnryDlg = nullptr;
  MenuDialog DlgIdMenu = MenuDialog::None;  // the template in force of each family; 0 for none
  ToolDialog DlgIdTool = ToolDialog::None;
  SubDialog DlgIdSub = SubDialog::None;
  SnryDialog DlgIdSnry = SnryDialog::None;
  int plain = 0;  // how many dialogs of no family and property sheets are up
};
extern DialogsState Dialogs;

// No dialog of a family is known any more.
void DialogsReset();

// Whether a dialog of one of the families, one of none, or a property sheet is up.
bool FamilyDialogIsUp();

// Runs a modal dialog of a family: sets the family's id, runs, and clears the
// id. The handle is set at Init and cleared at the close. `handler` is asked
// first about every event; what it leaves (returns false for) of button 1,
// button 2 and Close ends the dialog with 1 or 2. `context` comes with every event.
// Returns the dialog's result, -1 when it cannot be made.
int MenuDialogRun(MenuDialog dialog, int templateId, WindowHandle owner, EventHandler handler,
                  void* context = nullptr);
int ToolDialogRun(ToolDialog dialog, int templateId, WindowHandle owner, EventHandler handler,
                  void* context = nullptr);
int SubDialogRun(SubDialog dialog, int templateId, WindowHandle owner, EventHandler handler,
                 void* context = nullptr);
int SnryDialogRun(SnryDialog dialog, int templateId, WindowHandle owner, EventHandler handler,
                  void* context = nullptr);

// Runs a modal dialog of no family in the same way, but for id and handle: only that it is
// up is known.
int PlainDialogRun(int templateId, WindowHandle owner, EventHandler handler, void* context = nullptr);

// SheetRun, with the sheet known to be up.
bool PlainSheetRun(WindowHandle owner, const char* caption, const SheetPage* pages, int count);

// Ends a family's dialog from its own handler: clears the handle (for the menu
// family the panel state too) and ends it with `result`.
void MenuDialogEnd(WindowHandle dialog, int result);
// What a button of a menu does that ends it with a command.
template <Command command>
void MenuDialogEndWith(WindowHandle dialog) {
  MenuDialogEnd(dialog, static_cast<int>(command));
}
void ToolDialogEnd(WindowHandle dialog, int result);
void SubDialogEnd(WindowHandle dialog, int result);
void SnryDialogEnd(WindowHandle dialog, int result);
