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

// --- Windows

enum class WindowKind { Main, Modal, Modeless, Control };

struct HeadlessWindow {
  WindowHandle handle = nullptr;
  WindowKind kind = WindowKind::Control;
  WindowHandle parent = nullptr;  // of a control; the owner of a dialog
  int templateId = 0;
  EventHandler handler = nullptr;
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
  int limit = 32767;
  ScrollState scroll;
};

using WindowPointer = std::shared_ptr<HeadlessWindow>;

HandleTable<WindowTag, HeadlessWindow>& Windows();

// The window of a handle that `call` is about to use. Null for the null handle;
// a handle that is no more is a failure, and null too.
WindowPointer WindowUse(WindowHandle window, const char* call);

// A dialog's control; null when it is not there.
WindowPointer ControlUse(WindowHandle dialog, int id, const char* call);

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
void NoticeSend(const HeadlessWindow& control, Notice notice);

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
// Selects as ListSelect does.
void RowSelect(const WindowPointer& control, int row);

// --- Script

void Failure(const std::string& text);
// Code page 932 text for a failure: UTF-8 in quotes.
std::string Quoted(const std::string& text);
// Runs the next step. False if there is none.
bool ScriptStep();
void ScriptReset();

// For EventSend: tells who overhears.
void OverhearTell(const Event& event);
// The next message loop returns at once.
extern bool nextLoopIsLeft;

// --- Resources

const ResourceSet& Resources();

// --- Per file: forgets what it keeps

void WindowsReset();
void BoxesReset();
void CanvasReset();
void ScreenReset();
void ProcessReset();
void SoundReset();

// The region goes with its window.
void RegionOwned(RegionHandle region);  // from now on the system's
void RegionSystemDelete(RegionHandle region);
bool RegionIsThere(RegionHandle region, const char* call);
