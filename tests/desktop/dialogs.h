// What a user does in the companion's dialogs, done from outside.
#pragma once

#include <functional>
#include <string>

#include "tests/desktop/companion.h"

// Waits for a message box, presses one of its buttons (IDOK, ...) and waits until it
// is gone. Returns its text, or nothing if no box came.
std::wstring AnswerBox(const Companion& companion, const std::wstring& title, int button = IDOK);

// Presses a button that opens a dialog, and waits for it. Null if none comes.
HWND OpenBy(const Companion& companion, HWND dialog, int button, const std::wstring& title);

// Presses a button that ends the dialog, and waits until it is gone.
bool EndBy(HWND dialog, int button);

// Takes a file of the folder on show in the program's picker, which a button of the
// dialog opens.
bool PickFile(const Companion& companion, HWND dialog, int button, const std::wstring& name);

// Takes the folder on show, or one in it, in the folder dialog of that title.
bool PickFolder(const Companion& companion, HWND dialog, int button, const std::wstring& title,
                       const std::wstring& below = L"");

// Ticks that come in turn with everything else: what the ticks open may be modal.
// Waits until the condition holds.
bool TickUntil(const Companion& companion, const std::function<bool()>& condition,
               unsigned milliseconds = 20000);

void SetChecked(HWND dialog, int id, bool checked);  // and tells the dialog

// A key as it comes to the control of a dialog that has the focus.
struct Key {
  unsigned code;
  bool alt;
};
inline constexpr Key kEscape{VK_ESCAPE, false};
inline constexpr Key kEnter{VK_RETURN, false};
inline constexpr Key kAltF4{VK_F4, true};
void PostKey(HWND dialog, const Key& key);
bool GetsFocus(HWND dialog, int id);  // waits until the control has it
bool EndByKey(HWND dialog, const Key& key);  // and waits until the dialog is gone
