#include "tests/desktop/dialogs.h"


namespace {

constexpr int kBoxText = 0xFFFF;
constexpr int kOk = 1;
constexpr int kPickName = 100;
constexpr int kFolderRows = 2;

bool Gone(HWND window) {
  return WaitFor([&] { return !IsWindow(window) || !IsWindowVisible(window); });
}

// The window that the keys of a dialog's program go to.
HWND FocusOf(HWND dialog) {
  GUITHREADINFO info{};
  info.cbSize = sizeof info;
  return GetGUIThreadInfo(GetWindowThreadProcessId(dialog, nullptr), &info) ? info.hwndFocus : nullptr;
}

}  // namespace

std::wstring AnswerBox(const Companion& companion, const std::wstring& title, int button) {
  HWND box = nullptr;
  // A box has its text from the start; dialogs of the same title have none.
  WaitFor([&] {
    box = companion.FindDialog(title);
    return box && GetDlgItem(box, kBoxText);
  });
  if (!box) return L"";
  const std::wstring text = TextOf(GetDlgItem(box, kBoxText));
  PostButton(box, button);
  Gone(box);
  return text;
}

HWND OpenBy(const Companion& companion, HWND dialog, int button, const std::wstring& title) {
  PostButton(dialog, button);
  return companion.Dialog(title);
}

bool EndBy(HWND dialog, int button) {
  PostButton(dialog, button);
  return Gone(dialog);
}

bool PickFile(const Companion& companion, HWND dialog, int button, const std::wstring& name) {
  const HWND picker = OpenBy(companion, dialog, button, L"ファイルのロード");
  if (!picker) return false;
  SetEdit(picker, kPickName, name);
  return EndBy(picker, kOk);
}

bool PickFolder(const Companion& companion, HWND dialog, int button, const std::wstring& title,
                       const std::wstring& below) {
  const HWND picker = OpenBy(companion, dialog, button, title);
  if (!picker) return false;
  if (!below.empty()) {
    const HWND list = GetDlgItem(picker, kFolderRows);
    const LRESULT row = SendMessageW(list, LB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                     reinterpret_cast<LPARAM>((L"[" + below + L"]").c_str()));
    if (row < 0) return false;
    SendMessageW(list, LB_SETCURSEL, static_cast<WPARAM>(row), 0);
    SendMessageW(picker, WM_COMMAND, MAKEWPARAM(kFolderRows, LBN_DBLCLK), reinterpret_cast<LPARAM>(list));
  }
  return EndBy(picker, kOk);
}

bool TickUntil(const Companion& companion, const std::function<bool()>& condition, unsigned milliseconds) {
  return WaitFor(
      [&] {
        // Asking for a value waits until the ticks before it are done with.
        for (int i = 0; i < 32; ++i) PostMessageW(companion.Window(), WM_TIMER, 1, 0);
        companion.Value(kShowTicks);
        return condition();
      },
      milliseconds);
}

void SetChecked(HWND dialog, int id, bool checked) {
  SendDlgItemMessageW(dialog, id, BM_SETCHECK, checked ? BST_CHECKED : BST_UNCHECKED, 0);
  PressButton(dialog, id);
}

void PostKey(HWND dialog, const Key& key) {
  constexpr LPARAM kAltDown = 1 << 29;
  HWND focus = nullptr;
  WaitFor([&] { return (focus = FocusOf(dialog)) == dialog || IsChild(dialog, focus); });
  PostMessageW(focus, key.alt ? WM_SYSKEYDOWN : WM_KEYDOWN, key.code, key.alt ? kAltDown : 0);
}

bool GetsFocus(HWND dialog, int id) {
  return WaitFor([&] { return FocusOf(dialog) == GetDlgItem(dialog, id); });
}

bool EndByKey(HWND dialog, const Key& key) {
  PostKey(dialog, key);
  return Gone(dialog);
}
