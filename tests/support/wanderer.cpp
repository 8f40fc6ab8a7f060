#include "tests/support/wanderer.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "platform/dialog.h"
#include "platform/posix/posix_paths.h"
#include "platform/posix/test_clock.h"
#include "platform/window.h"
#include "services/commands.h"
#include "services/program.h"
#include "shell/tick_timer.h"

#define COMMAND(number, name, shownName, handler) number,
const std::vector<std::uint32_t> kEveryCommand = {
#include "services/command_table.inc"
};
#undef COMMAND

namespace {

constexpr std::size_t kTrail = 60;
constexpr int kMostDeeds = 24;      // in one dialog, before it is left
constexpr int kMostAttempts = 400;  // to leave it
constexpr int kDeepestSend = 4;     // modal dialogs over which commands are sent still
constexpr int kLongWait = 200;      // ticks
constexpr int kEscape = 27;

const char* const kTexts[] = {"",
                              "0",
                              "1",
                              "2",
                              "7",
                              "12",
                              "31",
                              "59",
                              "99",
                              "100",
                              "999",
                              "65536",
                              "99999999999",
                              "-1",
                              "a",
                              "abc",
                              "%s%d%n",
                              " ",
                              "C:\\mirrell",
                              "C:\\mirrell\\nothing.txt",
                              "名前",
                              "ソース表示十\\",
                              "ﾊﾝｶｸ",
                              "\x83",
                              "\xFF\xFE"};

const char* const kNames[] = {"a.txt", "表.GPI", "plan.GPP", "list.BUP", "cut.COF", "song.wav", "scene"};

}  // namespace

Wanderer::Wanderer(std::uint32_t seed) : random_(seed) {}

int Wanderer::Below(int bound) {
  return static_cast<int>(random_() % static_cast<unsigned>(bound));
}

// With MIRRELL_SOAK_TRACE set every deed is told before it is done.
void Wanderer::Note(const std::string& what) {
  static const bool traced = std::getenv("MIRRELL_SOAK_TRACE") != nullptr;
  if (traced) std::fprintf(stderr, "%d: %s\n", sends_, Cp932ToUtf8(what).c_str());
  trail_.push_back(Cp932ToUtf8(what));
  if (trail_.size() > 2 * kTrail) trail_.erase(trail_.begin(), trail_.end() - kTrail);
}

std::string Wanderer::Trail() const {
  std::string text = "behind send " + std::to_string(sends_) + ":";
  const std::size_t from = trail_.size() > kTrail ? trail_.size() - kTrail : 0;
  for (std::size_t i = from; i < trail_.size(); ++i) text += "\n  " + trail_[i];
  return text;
}

// --- What is sent, and what passes

void Wanderer::Send(std::uint32_t command) {
  ++sends_;
  Note("send " + std::to_string(command));
  SendCommand(Program.hMainWnd, command);
}

void Wanderer::SendAny() {
  const auto any = static_cast<std::size_t>(Below(static_cast<int>(kEveryCommand.size())));
  const auto command = static_cast<Command>(kEveryCommand[any]);
  const bool ends = command == Command::Close || command == Command::Exit;
  // A program that runs for a while has more in it.
  if (!ends || OneIn(4)) Send(kEveryCommand[any]);
}

void Wanderer::Wait(int times) {
  if (times < kLongWait) Note("wait " + std::to_string(times));
  for (int i = 0; i < times && !QuitWasAsked(); ++i) {
    TestClockGo(static_cast<unsigned>(std::max(TimerPeriod(Program.hMainWnd, kTickTimer), 1)));
    Tick();
  }
}

// --- The pointer

void Wanderer::Point(WindowHandle window) {
  constexpr EventKind kKinds[] = {EventKind::MouseMove, EventKind::LeftDown,   EventKind::LeftUp,
                                  EventKind::LeftDown,  EventKind::LeftDouble, EventKind::RightDown};
  const Rect client = WindowClientRect(window);
  if (client.right <= 0 || client.bottom <= 0) return;
  const int x = Below(client.right);
  const int y = Below(client.bottom);
  if (!MouseReaches(window, x, y)) return;
  const EventKind kind = kKinds[Below(6)];
  const unsigned keys = (OneIn(8) ? kShiftHeld : 0U) | (OneIn(2) ? kLeftHeld : 0U);
  Note("point " + std::to_string(TemplateOf(window)) + " kind " + std::to_string(static_cast<int>(kind)) +
       " at " + std::to_string(x) + ", " + std::to_string(y));
  if (OneIn(12)) {
    Wheel(window, x, y, Below(5) - 2);
  } else {
    Mouse(window, kind, x, y, keys);
  }
}

void Wanderer::PointAnywhere() {
  const std::vector<WindowHandle> open = OpenWindows();
  const WindowHandle window = open[static_cast<std::size_t>(Below(static_cast<int>(open.size())))];
  if (window == TopDialog() || !IsVisible(window)) return;
  if (OneIn(3) && window != Program.hMainWnd) {
    Use(window);
  } else {
    Point(window);
  }
}

// --- A dialog

std::string Wanderer::Text() {
  if (OneIn(20)) return std::string(static_cast<std::size_t>(Below(600)), 'x');
  if (OneIn(10)) return Path();
  return kTexts[Below(static_cast<int>(std::size(kTexts)))];
}

std::string Wanderer::Path() {
  return std::string(OneIn(4) ? "C:\\nowhere\\" : "C:\\mirrell\\") +
         kNames[Below(static_cast<int>(std::size(kNames)))];
}

// One of the controls of a dialog or of a window on the desktop.
void Wanderer::Use(WindowHandle dialog) {
  const std::vector<ControlSeen> controls = ControlsInReach(dialog);
  if (controls.empty()) return;
  const ControlSeen control = controls[static_cast<std::size_t>(Below(static_cast<int>(controls.size())))];
  Note("use " + std::to_string(control.id) + " of " + std::to_string(TemplateOf(dialog)) + " role " +
       std::to_string(static_cast<int>(control.role)));
  switch (control.role) {
    case ControlRole::Push:
    case ControlRole::Turn:
    case ControlRole::Label:
      Press(dialog, control.id);
      break;
    case ControlRole::List:
      if (control.rows == 0) break;
      (OneIn(4) ? DoubleClickRow : ChooseRow)(dialog, control.id, Below(control.rows));
      break;
    case ControlRole::Field:
      Type(dialog, control.id, Text().c_str());
      break;
    case ControlRole::Bar:
      ScrollBy(dialog, control.window, static_cast<Scroll>(Below(8)), Below(100));
      break;
  }
}

// Tries to have the dialog end, by another way each time.
void Wanderer::Leave(WindowHandle dialog, int attempt) {
  const std::vector<ControlSeen> controls = ControlsInReach(dialog);
  const auto has = [&](int id) {
    return std::any_of(controls.begin(), controls.end(), [id](const ControlSeen& control) {
      return control.id == id && control.role == ControlRole::Push;
    });
  };
  if (attempt < 12)
    Note("leave " + std::to_string(TemplateOf(dialog)) + " by way " + std::to_string(attempt % 6));
  switch (attempt % 6) {
    case 0:
      if (has(kOkButton)) Press(dialog, kOkButton);
      break;
    case 1:
      if (has(kCancelButton)) Press(dialog, kCancelButton);
      break;
    case 2:
      PressEscape(dialog);
      break;
    case 3:
      // A window without a caption is closed by Alt and F4.
      if (CloseReaches(dialog)) SendClose(dialog);
      break;
    case 4:
      PressEnter(dialog);
      break;
    default:
      Wait(attempt < 12 ? 20 : kLongWait);
      break;
  }
}

// What is done beside the dialog that is open: others send commands, windows that stand on
// the desktop are pointed at.
void Wanderer::Meanwhile() {
  if (nested_ <= kDeepestSend && OneIn(2)) {
    SendAny();
  } else {
    PointAnywhere();
  }
}

void Wanderer::Deed() {
  ++deeds_;
  const WindowHandle dialog = TopDialog();
  const WindowHandle page = SheetPageOnShow();
  const auto [at, isNew] = patience_.try_emplace(dialog, 0);
  if (isNew) at->second = OneIn(4) ? 0 : Below(kMostDeeds);
  const int left = at->second--;
  ++nested_;
  if (left < -kMostAttempts) {
    stuck_.push_back(std::to_string(TemplateOf(dialog)) + " " + WindowText(dialog) + " " + Trail());
    DialogEnd(dialog, kCancelButton);
  } else if (left <= 0) {
    Leave(dialog, left == 0 ? Below(6) : -left);
  } else {
    switch (Below(12)) {
      case 0:
      case 1:
        Point(page && OneIn(2) ? page : dialog);
        break;
      case 2:
      case 3:
        Wait(1 + Below(40));
        break;
      case 4:
        Meanwhile();
        break;
      case 5:
        if (KeyGoesTo(Program.hMainWnd) && OneIn(3)) PressKey(Program.hMainWnd, kEscape);
        if (SheetPageCount() > 0) SheetPageChoose(Below(SheetPageCount()));
        break;
      case 6:
        if (OneIn(3)) Leave(dialog, Below(6));
        break;
      default:
        Use(page && !OneIn(6) ? page : dialog);
        break;
    }
  }
  --nested_;
  if (!WindowIsOpen(dialog)) patience_.erase(dialog);
}

// --- What asks

BoxAnswer Wanderer::Answer(const Box& box) {
  Note("box " + box.text);
  if (OneIn(6)) Wait(1 + Below(10));
  switch (box.buttons) {
    case BoxButtons::OkCancel:
      return OneIn(2) ? BoxAnswer::Ok : BoxAnswer::Cancel;
    case BoxButtons::YesNo:
      return OneIn(2) ? BoxAnswer::Yes : BoxAnswer::No;
    default:
      return BoxAnswer::Ok;
  }
}

std::string Wanderer::File(const FileDialogCall& call) {
  Note("file dialog " + call.title);
  if (OneIn(6)) Wait(1 + Below(10));
  return OneIn(3) ? std::string() : Path();
}

std::uint32_t Wanderer::Entry(const std::vector<std::uint32_t>& entries) {
  Note("menu");
  if (entries.empty() || OneIn(4)) return 0;
  return entries[static_cast<std::size_t>(Below(static_cast<int>(entries.size())))];
}
