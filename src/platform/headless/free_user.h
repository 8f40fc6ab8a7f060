// A user without a script: asked wherever no script and no expectation says what comes
// next. Then a box, a file dialog or a menu that nobody expected is no failure.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/headless/headless.h"

class FreeUser {
 public:
  virtual ~FreeUser() = default;
  // One deed while a modal dialog is open. It must end some time.
  virtual void Deed() = 0;
  virtual BoxAnswer Answer(const Box& box) = 0;
  // The path that a file dialog of the system ends with; "" cancels it.
  virtual std::string File(const FileDialogCall& call) = 0;
  // The entry of a popup menu; 0 for none.
  virtual std::uint32_t Entry(const std::vector<std::uint32_t>& entries) = 0;
};

// Until HeadlessReset; null for none. The user is the caller's.
void FreeUserSet(FreeUser* user);

// --- What there is to do. All of these leave out what a user could not reach now.

enum class ControlRole { Push, Turn, Label, List, Field, Bar };
struct ControlSeen {
  WindowHandle window = nullptr;
  int id = 0;
  ControlRole role = ControlRole::Push;
  int rows = 0;  // List
};
// The controls of a dialog, in tab order. Turn: a check box or radio button; Label: one
// that reports; Bar: moved by ScrollBy.
std::vector<ControlSeen> ControlsInReach(WindowHandle dialog);
// Whether a mouse message at that point of the client area would go to the window itself.
bool MouseReaches(WindowHandle window, int x, int y);
// Whether the window can be closed by the sign in its caption or by Alt and F4, and whether
// a key goes to it.
bool CloseReaches(WindowHandle window);
bool KeyGoesTo(WindowHandle window);

// The innermost dialog's page on show, and how many pages it has: null and 0 when it is no
// property sheet.
WindowHandle SheetPageOnShow();
int SheetPageCount();
