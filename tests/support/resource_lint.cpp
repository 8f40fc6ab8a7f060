#include "tests/support/resource_lint.h"

#include <algorithm>
#include <map>

#include "platform/cp932.h"
#include "platform/posix/posix_paths.h"

namespace {

constexpr int kColumnUnits = 4;
constexpr int kLineUnits = 8;
constexpr int kButtonExtra = 8;
constexpr int kCheckExtra = 10;
constexpr int kCaptionExtra = 12;
constexpr int kClosedComboHeight = 12;
constexpr int kLongField = 30;  // narrower ones take short numbers

constexpr std::uint32_t kStyleVisible = 0x10000000;
constexpr std::uint32_t kStyleCaption = 0x00C00000;
constexpr std::uint32_t kButtonKinds = 0xF;
constexpr std::uint32_t kButtonGroupBox = 7;
constexpr std::uint32_t kButtonOwnerDraw = 0xB;
constexpr std::uint32_t kButtonMultiline = 0x2000;
constexpr std::uint32_t kButtonPicture = 0xC0;
constexpr std::uint32_t kStaticKinds = 0x1F;
constexpr std::uint32_t kStaticNoPrefix = 0x80;
constexpr std::uint32_t kStaticSimple = 0xB;
constexpr std::uint32_t kStaticNoWrap = 0xC;
constexpr std::uint32_t kEditMultiline = 4;
constexpr std::uint32_t kEditScrolls = 0x80;
constexpr std::uint32_t kComboScrolls = 0x40;
constexpr std::uint32_t kComboKinds = 3;
constexpr std::uint32_t kListNotify = 1;

using Control = ResourceControl;

bool IsButton(const Control& c) {
  return c.controlClass == ControlClass::Button;
}
bool IsStatic(const Control& c) {
  return c.controlClass == ControlClass::Static;
}
std::uint32_t ButtonKind(const Control& c) {
  return c.style & kButtonKinds;
}
std::uint32_t StaticKind(const Control& c) {
  return c.style & kStaticKinds;
}
bool IsGroupBox(const Control& c) {
  return IsButton(c) && ButtonKind(c) == kButtonGroupBox;
}
bool IsPushButton(const Control& c) {
  return IsButton(c) && ButtonKind(c) <= 1;
}

// Left, centred or right text, with or without wrapping.
bool IsLabel(const Control& c) {
  return IsStatic(c) &&
         (StaticKind(c) <= 2 || StaticKind(c) == kStaticSimple || StaticKind(c) == kStaticNoWrap);
}
// Frames and rectangles, which stand around other controls.
bool IsFrame(const Control& c) {
  const std::uint32_t kind = StaticKind(c);
  return IsStatic(c) && ((kind >= 4 && kind <= 9) || (kind >= 0x10 && kind <= 0x12));
}
bool Encloses(const Control& c) {
  return IsGroupBox(c) || IsFrame(c);
}

bool HasPrefix(const Control& c) {
  return (IsButton(c) && ButtonKind(c) != kButtonOwnerDraw) ||
         (IsLabel(c) && (c.style & kStaticNoPrefix) == 0);
}

// The text without the marks of its mnemonics; `mnemonic` takes the letter, 0
// for none.
std::string Shown(const Control& control, char* mnemonic) {
  *mnemonic = 0;
  if (!HasPrefix(control)) return control.text;
  std::string shown;
  for (std::size_t i = 0; i < control.text.size(); ++i) {
    char c = control.text[i];
    if (Cp932Leads(c) && i + 1 < control.text.size()) {
      shown += c;
      shown += control.text[++i];
      continue;
    }
    if (c == '&' && i + 1 < control.text.size()) {
      c = control.text[++i];
      if (c != '&') *mnemonic = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    }
    shown += c;
  }
  return shown;
}

// Lines that the text takes in so many columns; with `wraps` a line that is too
// long goes on below, else every line must fit. -1: it does not fit.
int LinesOf(const std::string& text, int columns, bool wraps) {
  int lines = 1;
  int used = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\n') {
      ++lines;
      used = 0;
      continue;
    }
    if (text[i] == '\r') continue;
    const int width = Cp932Leads(text[i]) && i + 1 < text.size() ? 2 : 1;
    if (width == 2) ++i;
    if (used + width > columns) {
      if (!wraps || width > columns) return -1;
      ++lines;
      used = 0;
    }
    used += width;
  }
  return lines;
}

std::string Named(const Control& control) {
  static const char* const kNames[] = {"button",     "edit",      "static", "list box",
                                       "scroll bar", "combo box", "control"};
  std::string name = kNames[static_cast<int>(control.controlClass)];
  if (IsGroupBox(control)) name = "group box";
  const bool none = control.id == 0xFFFF || control.id == 0xFFFFFFFF;
  if (!none) name += " " + std::to_string(control.id);
  if (!control.text.empty()) name += " \"" + Cp932ToUtf8(control.text) + "\"";
  return name;
}

struct Box {
  int left, top, right, bottom;
};

Box BoxOf(const Control& control) {
  int height = control.height;
  // The height of a combo box with a list is that of the opened list.
  if (control.controlClass == ControlClass::ComboBox && (control.style & kComboKinds) != 1) {
    height = kClosedComboHeight;
  }
  return {control.x, control.y, control.x + control.width, control.y + height};
}

std::string Text(const Box& b) {
  return "(" + std::to_string(b.left) + ", " + std::to_string(b.top) + ")-(" + std::to_string(b.right) +
         ", " + std::to_string(b.bottom) + ")";
}

bool Holds(const Box& outer, const Box& inner) {
  return outer.left <= inner.left && outer.top <= inner.top && outer.right >= inner.right &&
         outer.bottom >= inner.bottom;
}

bool Meet(const Box& a, const Box& b) {
  return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

bool MayOverlap(const Control& a, const Control& b) {
  if ((a.style & b.style & kStyleVisible) == 0) return true;
  return (Encloses(a) && Holds(BoxOf(a), BoxOf(b))) || (Encloses(b) && Holds(BoxOf(b), BoxOf(a)));
}

class Lint {
 public:
  explicit Lint(const ResourceDialog& dialog) : dialog_(dialog) {}

  std::vector<std::string> Run() {
    Dialog();
    for (const Control& control : dialog_.controls) {
      Names(control);
      Place(control);
      Fit(control);
      Habits(control);
    }
    Overlaps();
    return findings_;
  }

 private:
  void Find(const std::string& text) { findings_.push_back(text); }

  void Dialog() {
    if (dialog_.fontFace != "MS Gothic" || dialog_.fontSize != 12 || dialog_.fontItalic) {
      Find("the font is not the house's");
    }
    if (dialog_.caption.empty()) return;
    if ((dialog_.style & kStyleCaption) != kStyleCaption) Find("a caption, but no bar to show it in");
    const int needed = static_cast<int>(dialog_.caption.size()) * kColumnUnits + kCaptionExtra;
    if (needed > dialog_.width) {
      Find("the caption \"" + Cp932ToUtf8(dialog_.caption) + "\" needs " + std::to_string(needed) +
           " units, the dialog has " + std::to_string(dialog_.width));
    }
  }

  void Names(const Control& control) {
    char mnemonic = 0;
    Shown(control, &mnemonic);
    if (mnemonic != 0) {
      const auto [at, fresh] = mnemonics_.emplace(mnemonic, Named(control));
      if (!fresh) Find(Named(control) + ": the mnemonic " + mnemonic + " is that of " + at->second);
    }
    const bool none = control.id == 0xFFFF || control.id == 0xFFFFFFFF;
    if (none && (IsStatic(control) || IsGroupBox(control))) return;
    const auto [at, fresh] = ids_.emplace(control.id, Named(control));
    if (!fresh) Find(Named(control) + ": the id is that of " + at->second);
  }

  void Place(const Control& control) {
    const Box box = BoxOf(control);
    if (control.width <= 0 || control.height <= 0) Find(Named(control) + ": has no size");
    if (!Holds({0, 0, dialog_.width, dialog_.height}, box)) {
      Find(Named(control) + ": lies at " + Text(box) + ", the dialog is " + std::to_string(dialog_.width) +
           " x " + std::to_string(dialog_.height));
    }
  }

  void Fit(const Control& control) {
    char mnemonic = 0;
    const std::string shown = Shown(control, &mnemonic);
    if (shown.empty()) return;
    int extra = 0;
    bool wraps = false;
    if (IsButton(control)) {
      if (ButtonKind(control) == kButtonOwnerDraw || (control.style & kButtonPicture) != 0) return;
      extra = IsPushButton(control) || IsGroupBox(control) ? kButtonExtra : kCheckExtra;
      wraps = (control.style & kButtonMultiline) != 0;
    } else if (IsLabel(control)) {
      wraps = StaticKind(control) <= 2;
    } else {
      return;
    }
    const int columns = std::max(0, control.width - extra) / kColumnUnits;
    const int lines = LinesOf(shown, columns, wraps);
    const int room = IsGroupBox(control) ? 1 : control.height / kLineUnits;
    if (lines >= 0 && lines <= room) return;
    Find(Named(control) + ": " + std::to_string(shown.size()) + " columns do not fit " +
         std::to_string(control.width) + " x " + std::to_string(control.height) + " units");
  }

  void Habits(const Control& control) {
    if (control.controlClass == ControlClass::Edit && control.width >= kLongField &&
        (control.style & (kEditMultiline | kEditScrolls)) == 0) {
      Find(Named(control) + ": takes no more text than it shows; it lacks ES_AUTOHSCROLL");
    }
    if (control.controlClass == ControlClass::ComboBox && (control.style & kComboKinds) != kComboKinds &&
        (control.style & kComboScrolls) == 0) {
      Find(Named(control) + ": takes no more text than it shows; it lacks CBS_AUTOHSCROLL");
    }
    if (control.controlClass == ControlClass::ListBox && (control.style & kListNotify) == 0) {
      Find(Named(control) + ": reports nothing; it lacks LBS_NOTIFY");
    }
  }

  void Overlaps() {
    for (std::size_t i = 0; i < dialog_.controls.size(); ++i) {
      for (std::size_t k = i + 1; k < dialog_.controls.size(); ++k) {
        const Control& a = dialog_.controls[i];
        const Control& b = dialog_.controls[k];
        if (!Meet(BoxOf(a), BoxOf(b)) || MayOverlap(a, b)) continue;
        Find(Named(b) + " at " + Text(BoxOf(b)) + ": overlaps " + Named(a) + " at " + Text(BoxOf(a)));
      }
    }
  }

  const ResourceDialog& dialog_;
  std::vector<std::string> findings_;
  std::map<char, std::string> mnemonics_;
  std::map<std::int64_t, std::string> ids_;
};

}  // namespace

std::vector<std::string> LintDialog(const ResourceDialog& dialog) {
  return Lint(dialog).Run();
}

std::string LintResources(const ResourceSet& set) {
  std::string text;
  for (const auto& [id, dialog] : set.dialogs) {
    const std::vector<std::string> findings = LintDialog(dialog);
    if (findings.empty()) continue;
    text += "dialog " + std::to_string(id) + " \"" + Cp932ToUtf8(dialog.caption) + "\":\n";
    for (const std::string& finding : findings) text += "  " + finding + "\n";
  }
  return text;
}
