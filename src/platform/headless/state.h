// What the headless backend keeps in memory; shared by its own files only.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "platform/event.h"
#include "platform/headless/handles.h"
#include "platform/headless/headless.h"
#include "platform/headless/resource_file.h"
#include "platform/sheet.h"

// --- Windows

// A page is a dialog inside a property sheet, which is its parent.
enum class WindowKind { Main, Modal, Modeless, Page, Control };

struct HeadlessWindow {
  WindowHandle handle = nullptr;
  WindowKind kind = WindowKind::Control;
  WindowHandle parent = nullptr;  // of a control; the owner of a dialog
  int templateId = 0;
  EventHandler handler = nullptr;
  void* context = nullptr;             // handed to the handler with every event
  std::vector<WindowHandle> children;  // in tab order
  std::string text;
  Rect rect{};    // on the screen; of a control in its parent's client area
  Rect border{};  // thickness of the four edges around the client area
  bool visible = false;
  bool enabled = true;
  bool topmost = false;
  bool wasShown = false;
  bool dirty = false;  // a Paint is due
  bool alive = true;
  std::map<int, int> timers;  // number, milliseconds
  RegionHandle region = nullptr;
  int regionSets = 0;

  // Modal dialogs
  bool ended = false;
  int result = 0;

  // Controls
  int id = -1;
  ControlClass controlClass = ControlClass::Other;
  std::uint32_t style = 0;
  bool checked = false;
  std::vector<std::string> rows;
  int selected = -1;
  bool draws = true;  // each change of the rows
  int drawings = 0;
  int extent = 0;  // pixels to scroll over sideways
  int limit = 32767;
  ScrollState scroll;
};

using WindowPointer = std::shared_ptr<HeadlessWindow>;

HandleTable<WindowTag, HeadlessWindow>& Windows();

// The window of a handle that `call` is about to use. Null for the null handle;
// a handle that is no more is a failure, and null too.
WindowPointer WindowUse(WindowHandle window, const char* call);

// A dialog's control; null when it is not there.
WindowPointer ControlFind(WindowHandle dialog, int id);
// The same for `call`, which is about to use it: one that is not there is a failure.
// The null handle stands for a dialog that is not open, and is passed over.
WindowPointer ControlUse(WindowHandle dialog, int id, const char* call);
// The same for what a test asks: without a dialog there is nothing to ask about.
WindowPointer ControlAsked(WindowHandle dialog, int id, const char* call);

// "Press 12 of dialog 3500"
std::string Deed(const char* what, WindowHandle dialog, int id);

// Makes the window known and counts it.
WindowHandle WindowAdd(const WindowPointer& window);

// Sends Destroy (if `tell`), takes what it owns along and forgets it.
void WindowRemove(WindowHandle window, bool tell);

// The left upper corner of the client area on the screen.
Point ClientOrigin(const HeadlessWindow& window);

// Runs the window's handler, and what is done by default for an event that it
// leaves. True if the handler has done it.
bool EventSend(const Event& event);

// What a control tells its parent.
void ControlTells(const HeadlessWindow& control, EventKind kind);

// Shows or hides; the first show brings a Size event.
void WindowSetVisible(const WindowPointer& window, bool visible);

// Sends the Paint events that are due.
void PaintDue();

extern WindowHandle focusWindow;
extern WindowHandle captureWindow;  // that hears the pointer wherever it is
extern std::vector<WindowHandle> modalStack;
// Of the message loop that runs; none: null and 0.
extern WindowHandle loopWindow;
extern int loopAccelerators;
extern bool quitAsked;
extern int quitCode;

// --- Controls

bool IsCheckControl(const HeadlessWindow& control);
bool HasRows(const HeadlessWindow& control);
// Turns an automatic check box or radio button over.
void ControlTurn(const WindowPointer& control);
bool IsPushButton(const HeadlessWindow& control);
// Selects as ListSelect does.
void RowSelect(const WindowPointer& control, int row);

// --- Sheets

// Runs a modal window with the buttons of a property sheet.
int SheetWindowRun(WindowHandle owner, const char* caption, EventHandler handler, void* context);
// Makes a page, hidden; null when that fails.
WindowHandle SheetPageMake(WindowHandle sheet, const SheetPage& page);

// The window that a modal dialog or a box of this owner disables: of a page, its sheet.
WindowPointer OwnerOf(WindowHandle owner, const char* call);

// --- Script

void Failure(const std::string& text);
// Code page 932 text for a failure: UTF-8 in quotes.
std::string Quoted(const std::string& text);
// Runs the next step, or asks the free user. False if there is none.
bool ScriptStep();
void ScriptReset();

// Who is asked where no script says what comes next; null: nobody.
class FreeUser;
extern FreeUser* freeUser;

// For EventSend: tells who overhears.
void OverhearTell(const Event& event);
// The next message loop returns at once.
extern bool nextLoopIsLeft;

// --- Resources

const ResourceSet& Resources();

// --- Per file: forgets what it keeps

void WindowsReset();
void BoxesReset();
void SheetsReset();
void CanvasReset();
void ScreenReset();
void ProcessReset();
void SoundReset();

// The region goes with its window.
void RegionOwned(RegionHandle region);  // from now on the system's
void RegionSystemDelete(RegionHandle region);
bool RegionIsThere(RegionHandle region, const char* call);
