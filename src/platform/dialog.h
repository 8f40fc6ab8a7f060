// Dialogs made from templates in the resources, and their controls.
#pragma once

#include "platform/event.h"
#include "platform/types.h"

// Runs a dialog until DialogEnd and returns that result; -1 when it cannot be
// made. The message loop inside keeps the timer going. The owner is disabled
// meanwhile. `context` comes with every event, so that a handler that serves several
// dialogs need not guess which one it is.
int DialogRun(int templateId, WindowHandle owner, EventHandler handler, void* context = nullptr);

// Opens a dialog beside everything else. It ends with WindowDestroy. Null on
// failure.
WindowHandle DialogOpen(int templateId, WindowHandle owner, EventHandler handler, void* context = nullptr);

// Ends a modal dialog; DialogRun returns when the event is through. On a
// modeless one it only hides it.
void DialogEnd(WindowHandle dialog, int result);

// The pixels of a rectangle given in dialog units.
Rect DialogUnits(WindowHandle dialog, const Rect& units);

// --- Controls, by dialog and id. Of a dialog that is not open (null) a control is
// passed over and reads as empty, 0 or -1. To ask an open one for a control that it has
// not is a mistake; it is passed over too, and fails the test.

WindowHandle Control(WindowHandle dialog, int id);

// Its place in the dialog's client area.
Rect ControlPlace(WindowHandle dialog, int id);
void ControlSetText(WindowHandle dialog, int id, const char* text);
// Copies at most size - 1 bytes and terminates; the cut may fall inside a
// double-byte pair, as dialogs tell. Returns the length.
int ControlGetText(WindowHandle dialog, int id, char* buffer, int size);
void ControlEnable(WindowHandle dialog, int id, bool enable);
void ControlShow(WindowHandle dialog, int id, bool show);
void ControlSetFocus(WindowHandle dialog, int id);
// How many characters an edit field takes.
void ControlSetLimit(WindowHandle dialog, int id, int characters);

void ControlSetChecked(WindowHandle dialog, int id, bool checked);
bool ControlIsChecked(WindowHandle dialog, int id);

// List boxes and the lists of combo boxes.
void ListClear(WindowHandle dialog, int id);
// Adds a row and returns its place. A list box with a horizontal scroll bar (WS_HSCROLL)
// scrolls as far as its longest row needs.
int ListAdd(WindowHandle dialog, int id, const char* text);
// Whether a list draws each change of its rows; when that is on again, all is drawn.
void ListDraw(WindowHandle dialog, int id, bool on);
int ListCount(WindowHandle dialog, int id);
int ListSelected(WindowHandle dialog, int id);          // -1 for none
void ListSelect(WindowHandle dialog, int id, int row);  // -1 for none; tells nobody
// Text of a row, terminated at size; the length, or -1 for a bad row.
int ListText(WindowHandle dialog, int id, int row, char* buffer, int size);
// Fills a list box with the folders ("[name]", "[..]") and drives ("[-c-]") of
// the current folder.
void ListFolders(WindowHandle dialog, int id);

// Keeps a list from drawing as long as it stands: for whoever adds many rows, each of
// which would cost a drawing.
class ListQuiet {
 public:
  ListQuiet(WindowHandle dialog, int id) : dialog_(dialog), id_(id) { ListDraw(dialog_, id_, false); }
  ~ListQuiet() { ListDraw(dialog_, id_, true); }
  ListQuiet(const ListQuiet&) = delete;
  ListQuiet& operator=(const ListQuiet&) = delete;

 private:
  WindowHandle dialog_;
  int id_;
};

enum class ControlKind { Button, ListBox, VerticalScrollBar };

// A child control made at run time, at pixels of the client area. Null on
// failure. Ends with WindowDestroy or with its parent.
WindowHandle ControlCreate(WindowHandle parent, ControlKind kind, int id, const Rect& place,
                           const char* text);

// A vertical scroll bar control: range 0 to `lines` - 1, a page, a position.
void ScrollBarSet(WindowHandle bar, int lines, int page, int position);
void ScrollBarEnable(WindowHandle bar, bool enable);

// --- Message boxes

enum class BoxIcon { Exclamation, Question };
enum class BoxButtons { Ok, OkCancel, YesNo };
enum class BoxAnswer { Ok = 1, Cancel = 2, Yes = 6, No = 7 };

BoxAnswer MessageBoxRun(WindowHandle owner, const char* text, const char* caption, BoxButtons buttons,
                        BoxIcon icon);

// --- Popup menus, by resource number

// Shows the first popup of a menu resource at a point of `window`'s client
// area. With `asCommand` the chosen number is returned (0 for none) and nobody
// is sent anything; without, `window` is sent the command and 0 comes back.
std::uint32_t MenuPopup(int menuId, WindowHandle window, int x, int y, bool asCommand);

// Takes away a popup menu that is still up; nothing is chosen then.
void MenuPopupEnd();

// --- String resources

// Loads a string, terminated at size; the length, 0 if there is none.
int StringLoad(int id, char* buffer, int size);

// --- The platform's own file dialogs

// `filterText` names the one kind of file ("BackUp Files (*.BUP)"), `mask` is
// its pattern. `path` (terminated, `size` bytes) goes in as a proposal and
// comes back on true.
bool FileDialogLoad(WindowHandle owner, const char* title, const char* filterText, const char* mask,
                    const char* startFolder, char* path, int size);
bool FileDialogSave(WindowHandle owner, const char* title, const char* filterText, const char* mask,
                    const char* startFolder, char* path, int size);

// Whether one of them is up: no dialog of a feature opens over it.
bool FileDialogIsUp();
