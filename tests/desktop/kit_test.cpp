// The backend's dialogs with real controls: what their handlers hear, what the keyboard
// does, forms, lists that scroll sideways, property sheets. They run inside the test
// program, and a timer plays the user.
#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>
#include <prsht.h>

#include <functional>
#include <string>
#include <vector>

#include "platform/dialog.h"
#include "platform/sheet.h"
#include "services/form.h"
#include "tests/desktop/companion.h"
#include "tests/support/test_dialogs.h"

namespace {

using Names = std::vector<std::string>;

Names heard;
HWND shown = nullptr;
std::vector<std::function<void()>> steps;
std::size_t stepNow = 0;

// One step of the script after the other, while a dialog runs its loop.
void CALLBACK Step(HWND, UINT, UINT_PTR timer, DWORD) {
  if (stepNow < steps.size()) {
    steps[stepNow++]();
  } else {
    KillTimer(nullptr, timer);
  }
}

UINT_PTR Play(std::vector<std::function<void()>> script) {
  steps = std::move(script);
  stepNow = 0;
  heard.clear();
  return SetTimer(nullptr, 0, 20, Step);
}

void Hear(const char* what, int id) {
  heard.push_back(what + std::to_string(id));
}

bool Listen(const Event& event) {
  if (event.kind == EventKind::Init) shown = reinterpret_cast<HWND>(event.window);
  if (event.kind == EventKind::Pressed) Hear("pressed ", event.id);
  if (event.kind == EventKind::Chosen) Hear("chosen ", event.id);
  if (event.kind == EventKind::Opened) Hear("opened ", event.id);
  if (event.kind == EventKind::Edited) Hear("edited ", event.id);
  if (event.kind == EventKind::Command) Hear("command ", static_cast<int>(event.command));
  if (!EndIsAsked(event)) return false;
  DialogEnd(event.window, event.id);
  return true;
}

WindowHandle Shown() {
  return reinterpret_cast<WindowHandle>(shown);
}

// What a control reports to the dialog.
void Report(int id, int code) {
  SendMessageW(shown, WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(GetDlgItem(shown, id)));
}

TEST(Kit, HandlersHearWhatTheUserMeant) {
  Play({[] {
    heard.clear();
    SetEdit(shown, 22, L"abc");
    PressButton(shown, 31);
    ListAdd(Shown(), 30, "a");
    SelectListRow(shown, 30, 0);
    Report(30, LBN_DBLCLK);
    Report(30, LBN_SETFOCUS);
    Report(22, EN_SETFOCUS);
    Report(22, EN_UPDATE);
    Report(24, CBN_DROPDOWN);
    Report(24, CBN_SELCHANGE);
    SendMessageW(shown, WM_COMMAND, 2376, 0);
    SendMessageW(shown, WM_COMMAND, 0x100000002, 0);  // no button, and no command
    SendMessageW(shown, WM_COMMAND, IDCANCEL, 0);
  }});
  EXPECT_EQ(DialogRun(IDD_TestForm, nullptr, Listen), 2);
  EXPECT_EQ(heard, (Names{"edited 22", "pressed 31", "chosen 30", "opened 30", "chosen 24", "command 2376",
                          "pressed 2"}));
}

void PressVirtualKey(int key) {
  HWND focus = GetFocus();
  PostMessageW(focus ? focus : shown, WM_KEYDOWN, static_cast<WPARAM>(key), 0);
}

TEST(Kit, EnterPressesTheDefaultButtonAndEscapeTwo) {
  Play({[] { SetFocus(GetDlgItem(shown, 22)); }, [] { PressVirtualKey(VK_RETURN); }});
  EXPECT_EQ(DialogRun(IDD_TestForm, nullptr, Listen), 1);
  Play({[] { SetFocus(GetDlgItem(shown, 22)); }, [] { PressVirtualKey(VK_ESCAPE); }});
  EXPECT_EQ(DialogRun(IDD_TestForm, nullptr, Listen), 2);
}

// Nor does Escape on Windows; Wine presses 2 all the same.
TEST(Kit, EnterPressesNoDisabledButton) {
  Play({[] {
          ControlEnable(Shown(), 1, false);
          SetFocus(GetDlgItem(shown, 22));
          heard.clear();
        },
        [] { PressVirtualKey(VK_RETURN); }, [] {},
        [] {
          EXPECT_EQ(heard, Names{});
          EndDialog(shown, 7);
        }});
  EXPECT_EQ(DialogRun(IDD_TestForm, nullptr, Listen), 7);
}

TEST(Kit, ListScrollsAsFarAsItsLongestRow) {
  Play({[] {
    HWND list = GetDlgItem(shown, 30);
    ListAdd(Shown(), 30, "abc");
    const auto narrow = SendMessageW(list, LB_GETHORIZONTALEXTENT, 0, 0);
    ListAdd(Shown(), 30, std::string(100, 'a').c_str());
    const auto wide = SendMessageW(list, LB_GETHORIZONTALEXTENT, 0, 0);
    ListAdd(Shown(), 30, "abc");
    EXPECT_EQ(narrow, 3 * 8 + 4);
    EXPECT_EQ(wide, 100 * 8 + 4);
    EXPECT_EQ(SendMessageW(list, LB_GETHORIZONTALEXTENT, 0, 0), wide);
    ListClear(Shown(), 30);
    EXPECT_EQ(SendMessageW(list, LB_GETHORIZONTALEXTENT, 0, 0), 0);
    EndDialog(shown, 0);
  }});
  DialogRun(IDD_TestForm, nullptr, Listen);
}

struct Sample {
  unsigned char enabled = 1;
  char name[8] = "abc";
  unsigned short value = 42;
  int size = 2;
  unsigned char kind = 1;
};
constexpr const char* kSizes[] = {"a", "b", "c"};
constexpr int kKinds[] = {25, 26};

void Exchange(Form& form, Sample& sample) {
  form.Check(20, sample.enabled);
  form.Text(22, sample.name, 7);
  form.Number(23, sample.value, 3);
  form.Choice(24, sample.size, RowsOf(kSizes));
  form.Radio(kKinds, sample.kind);
}

TEST(Kit, FormShowsAndTakes) {
  static Sample sample;
  sample = {};
  Play({[] {
    FormShow(Shown(), sample, Exchange);
    EXPECT_EQ(EditText(shown, 22), L"abc");
    EXPECT_EQ(EditText(shown, 23), L"42");
    EXPECT_EQ(TextOf(GetDlgItem(shown, 24)), L"c");
    EXPECT_EQ(SendDlgItemMessageW(shown, 23, EM_GETLIMITTEXT, 0, 0), 3);
    PressButton(shown, 20);
    SetEdit(shown, 22, L"longer than that");
    SetEdit(shown, 23, L"-5");
    SelectListRow(shown, 24, 0);
    SendDlgItemMessageW(shown, 20, BM_SETCHECK, BST_UNCHECKED, 0);
    SendDlgItemMessageW(shown, 26, BM_SETCHECK, BST_UNCHECKED, 0);
    SendDlgItemMessageW(shown, 25, BM_SETCHECK, BST_CHECKED, 0);
    FormTake(Shown(), sample, Exchange);
    EndDialog(shown, 0);
  }});
  DialogRun(IDD_TestForm, nullptr, Listen);
  EXPECT_EQ(sample.enabled, 0);
  EXPECT_STREQ(sample.name, "longer ");
  EXPECT_EQ(sample.value, 65531);
  EXPECT_EQ(sample.size, 0);
  EXPECT_EQ(sample.kind, 0);
}

// --- Property sheets

bool Page(const Event& event) {
  const int number = *static_cast<int*>(event.context);
  if (event.kind == EventKind::Init) Hear("init ", number);
  if (event.kind == EventKind::Apply) Hear("apply ", number);
  if (event.kind == EventKind::Edited) SheetChanged(event.window);
  return false;
}

HWND Sheet() {
  return FindWindowW(nullptr, L"sheet of pages");
}

constexpr int kApply = 0x3021;

bool RunSheet(int count = 2) {
  static int one = 1;
  static int two = 2;
  static int three = 3;
  const SheetPage pages[] = {
      {IDD_TestPageOne, Page, &one}, {IDD_TestPageTwo, Page, &two}, {IDD_TestPageOne, Page, &three}};
  return SheetRun(nullptr, "sheet of pages", pages, count);
}

HWND PageShown() {
  return reinterpret_cast<HWND>(SendMessageW(Sheet(), PSM_GETCURRENTPAGEHWND, 0, 0));
}

TEST(Kit, SheetAppliesThePagesThatWereShown) {
  Play({[] { PressButton(Sheet(), IDOK); }});
  EXPECT_TRUE(RunSheet());
  EXPECT_EQ(heard, (Names{"init 1", "apply 1"}));
  Play({[] { SendMessageW(Sheet(), PSM_SETCURSEL, 1, 0); }, [] { PressButton(Sheet(), IDOK); }});
  EXPECT_TRUE(RunSheet());
  EXPECT_EQ(heard, (Names{"init 1", "init 2", "apply 1", "apply 2"}));
}

TEST(Kit, SheetOfThreeAppliesInTheOrderOfItsPages) {
  Play({[] { SendMessageW(Sheet(), PSM_SETCURSEL, 2, 0); },
        [] {
          SetEdit(PageShown(), 10, L"x");
          PressButton(Sheet(), kApply);
        },
        [] { PressButton(Sheet(), IDCANCEL); }});
  EXPECT_FALSE(RunSheet(3));
  EXPECT_EQ(heard, (Names{"init 1", "init 3", "apply 1", "apply 3"}));
}

TEST(Kit, CancelledSheetIsFalseAlsoBehindAnApply) {
  Play({[] { PressButton(Sheet(), IDCANCEL); }});
  EXPECT_FALSE(RunSheet());
  EXPECT_EQ(heard, Names{"init 1"});
  Play({[] {
          EXPECT_FALSE(IsWindowEnabled(GetDlgItem(Sheet(), kApply)));
          SetEdit(PageShown(), 10, L"x");
          EXPECT_TRUE(IsWindowEnabled(GetDlgItem(Sheet(), kApply)));
          PressButton(Sheet(), kApply);
          EXPECT_FALSE(IsWindowEnabled(GetDlgItem(Sheet(), kApply)));
        },
        [] { PressButton(Sheet(), IDCANCEL); }});
  EXPECT_FALSE(RunSheet());
  EXPECT_EQ(heard, (Names{"init 1", "apply 1"}));
}

}  // namespace
