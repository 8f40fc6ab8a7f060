// The tests' side of the headless backend: what a scripted user does, and what
// was drawn, asked, played and started.
//
// Windows and dialogs live in memory. Dialogs are made from the product's own
// compiled resources, so control ids and kinds are the real ones. A modal
// dialog runs the script: its loop takes one step after the other until the
// dialog ends. A script that is empty while a dialog is still open, a box or file
// dialog that nobody expected, a deed that no user could do, and the use of a control
// that is not there are failures; HeadlessFailures lists them and the test fixture
// reports them.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/canvas.h"
#include "platform/dialog.h"
#include "platform/event.h"

// The compiled resources (a 32-bit .res file of this system) that dialogs,
// menus and strings come from; kept over HeadlessReset.
void HeadlessResourceFile(const std::string& path);

// Forgets every window, script, expectation and recording.
void HeadlessReset();

// What went wrong against the script; empty in a good test.
const std::vector<std::string>& HeadlessFailures();
// The same, and takes them back: for tests that mean to go wrong.
std::vector<std::string> HeadlessTakeFailures();

// --- Script

// Adds a step that the innermost modal loop runs when its turn comes.
void Then(std::function<void()> step);

// Steps that are still waiting.
int StepsLeft();

// The next message loop returns 0 at once, with no word of an end: the test goes on
// with the program standing.
void LeaveNextLoop();

// Hears every event before the window that it goes to; until HeadlessReset.
void Overhear(std::function<void(const Event&)> listener);

// --- What the user does

void Press(WindowHandle dialog, int id);               // a button; a check box turns over
void ChooseRow(WindowHandle dialog, int id, int row);  // selects and tells the dialog
void DoubleClickRow(WindowHandle dialog, int id, int row);
void Type(WindowHandle dialog, int id, const char* text);  // replaces an edit field's text
void Mouse(WindowHandle window, EventKind kind, int x, int y, unsigned keys = 0);
void Wheel(WindowHandle window, int x, int y, int notches);  // away from the user counted up
void PressKey(WindowHandle window, int code);                // Char
// Enter and Escape in a modal dialog, as the dialog manager hears them: Enter presses
// the button with the focus, else the default one, else sends 1; Escape sends 2. A
// disabled button is not pressed. A field of several lines may take Enter itself.
void PressEnter(WindowHandle dialog);
void PressEscape(WindowHandle dialog);
void PressClose(WindowHandle window);  // the sign in the caption, or Alt+F4
// A key with an entry in the accelerators of the running message loop. `flags`:
// 4 shift, 8 control, 16 alt.
void PressAccelerator(int key, unsigned flags);
// Moves a scroll bar control as the user would.
void ScrollBy(WindowHandle window, WindowHandle bar, Scroll scroll, int position = 0);
void SetPointer(int x, int y);
// Fires every running timer `times` times.
void Tick(int times = 1);

// The tab of a page, from 0, of the property sheet that is the innermost dialog. Its
// buttons are pressed as 1, 2 and this number; the page on show is found by its template.
void SheetPageChoose(int page);
inline constexpr int kSheetApplyButton = 0x3021;

// --- What will be asked

struct Box {
  std::string text;
  std::string caption;
  BoxButtons buttons = BoxButtons::Ok;
  BoxIcon icon = BoxIcon::Exclamation;
  WindowHandle owner = nullptr;
};
// The next box must have this text and caption (code page 932) and is answered.
// `meanwhile` runs while the box is up.
void ExpectBox(const char* text, const char* caption, BoxAnswer answer = BoxAnswer::Ok,
               std::function<void()> meanwhile = nullptr);
int BoxesLeft();
const std::vector<Box>& BoxesShown();
// The next file dialog of the platform ends with this path, or is cancelled by "".
// `meanwhile` runs while it is up.
void ExpectFileDialog(const char* path, std::function<void()> meanwhile = nullptr);
// The next popup menu must be this one; `command` is chosen, 0 for none, unless
// `meanwhile`, which runs while the menu is up, takes it away.
void ExpectMenu(int menuId, std::uint32_t command, std::function<void()> meanwhile = nullptr);
// File dialogs and menus that are expected and have not come.
int DialogsExpected();
struct FileDialogCall {
  bool save = false;
  std::string title;
  std::string filterText;
  std::string mask;
  std::string startFolder;
  std::string path;  // what the caller proposed
  WindowHandle owner = nullptr;
};
const std::vector<FileDialogCall>& FileDialogsShown();

// --- What is there

// The innermost open modal dialog; null if none.
WindowHandle TopDialog();
// An open dialog of that template, the newest first; null if none.
WindowHandle FindDialog(int templateId);
int TemplateOf(WindowHandle window);
// The window that has captured the pointer; null if none.
WindowHandle PointerCaptured();
// Main window and dialogs, the oldest first.
std::vector<WindowHandle> OpenWindows();
int OpenWindowCount();
bool IsVisible(WindowHandle window);
bool IsTopmost(WindowHandle window);
bool ControlIsEnabled(WindowHandle dialog, int id);
bool ControlIsVisible(WindowHandle dialog, int id);
std::string ControlText(WindowHandle dialog, int id);
std::vector<std::string> ListRows(WindowHandle dialog, int id);

// How often a list has drawn its rows.
int ListDrawings(WindowHandle dialog, int id);
// How many pixels a list box scrolls sideways over; 0 for one that does not.
int ListExtent(WindowHandle dialog, int id);
std::string WindowText(WindowHandle window);
bool TimerIsRunning(WindowHandle window, int id);
int TimerPeriod(WindowHandle window, int id);  // milliseconds; 0 when it is not running
struct ScrollState {
  int lines = 0;
  int page = 0;
  int position = 0;
  bool enabled = true;
};
ScrollState ScrollBarState(WindowHandle bar);
// The region of a window: null if it is whole. A region keeps its points.
RegionHandle RegionOf(WindowHandle window);
std::vector<Point> RegionPoints(RegionHandle region);
enum class RegionKind { None, Polygon, Ellipse, Rectangle };
// The points of an ellipse or rectangle are its two corners.
RegionKind RegionKindOf(RegionHandle region);
int RegionSetCount(WindowHandle window);  // how often WindowSetRegion was called
bool QuitWasAsked();
// Takes the main window away without a word, as the end of the process does.
void MainWindowDrop();
void ScreenSet(int fullWidth, int fullHeight);

// --- What was drawn

struct DrawCall {
  enum class Kind { Text, Rectangle, Ellipse, Pie, Polygon, Line, Dib, Copy, Stretch } kind;
  WindowHandle window = nullptr;       // where it ended up; null: still only in memory
  int x = 0, y = 0, x2 = 0, y2 = 0;    // place; right and bottom, or the second point
  int ax = 0, ay = 0, bx = 0, by = 0;  // Pie: the two ray points
  std::vector<Point> points;           // Polygon
  std::string text;                    // Text
  int fontWidth = 0, fontHeight = 0;   // Text
  Colour textColour = 0;
  Colour backColour = 0;
  bool transparent = false;
  Colour brush = 0;    // of the brush in force
  bool filled = true;  // false: no brush
  Colour pen = 0;
  bool edged = true;  // false: no pen
  int penWidth = 1;
  bool dotted = false;
  const void* dib = nullptr;  // Dib: the header it was drawn from
  unsigned dibSum = 0;        // ... and the sum of the bytes of header and pixels
  RasterOp op = RasterOp::Copy;
  bool clipped = false;
  Rect clip{};
};
// What was drawn into a window since the last DrawingClear, in order. What was
// drawn into a memory bitmap stands there from the moment it was copied.
std::vector<DrawCall> Drawings(WindowHandle window);
void DrawingClear();
// The texts among them.
std::vector<DrawCall> DrawnTexts(WindowHandle window);
// True if that text was drawn at that place and nothing has covered it since.
bool TextStands(WindowHandle window, const char* text, int x, int y);

// --- What was played and started

const std::vector<std::string>& SoundsPlayed();
struct StartedProcess {
  std::string commandLine;
  std::string folder;   // the current folder at the start
  unsigned waited = 0;  // milliseconds it was waited for
  bool closed = false;
};
const std::vector<StartedProcess>& ProcessesStarted();
// The program for an extension (".txt"). AssociationFind also asks that the
// file exists, and a program (".exe") stands for itself.
void AssociationSet(const char* extension, const char* program);
void ClassValueSet(const char* key, const char* value);
