#include <algorithm>
#include <cstring>

#include "platform/dialog.h"
#include "platform/headless/state.h"
#include "platform/posix/faults.h"

namespace {

constexpr std::uint32_t kButtonKinds = 0xF;
constexpr std::uint32_t kCheckBox = 2;
constexpr std::uint32_t kAutoCheckBox = 3;
constexpr std::uint32_t kRadioButton = 4;
constexpr std::uint32_t kThreeState = 5;
constexpr std::uint32_t kAutoThreeState = 6;
constexpr std::uint32_t kAutoRadioButton = 9;
constexpr std::uint32_t kStyleGroup = 0x00020000;
constexpr std::uint32_t kStyleTabStop = 0x00010000;
constexpr std::uint32_t kStyleMultiline = 4;
constexpr std::uint32_t kListNotify = 1;
constexpr std::uint32_t kListSort = 2;

std::uint32_t ButtonKind(const HeadlessWindow& control) {
  return control.style & kButtonKinds;
}

}  // namespace

bool IsCheckControl(const HeadlessWindow& control) {
  if (control.controlClass != ControlClass::Button) return false;
  switch (ButtonKind(control)) {
    case kCheckBox:
    case kAutoCheckBox:
    case kRadioButton:
    case kThreeState:
    case kAutoThreeState:
    case kAutoRadioButton:
      return true;
    default:
      return false;
  }
}

void ControlTurn(const WindowPointer& control) {
  if (control->controlClass != ControlClass::Button) return;
  const std::uint32_t kind = ButtonKind(*control);
  if (kind == kAutoCheckBox || kind == kAutoThreeState) control->checked = !control->checked;
  if (kind != kAutoRadioButton) return;
  // The group runs from the last control with the group style up to the next.
  const WindowPointer dialog = Windows().Find(control->parent);
  if (!dialog) return;
  std::vector<WindowPointer> group;
  bool inside = false;
  for (const WindowHandle child : dialog->children) {
    const WindowPointer other = Windows().Find(child);
    if ((other->style & kStyleGroup) != 0) {
      if (inside) break;
      group.clear();
    }
    group.push_back(other);
    inside = inside || other == control;
  }
  for (const WindowPointer& other : group) {
    if (other->controlClass == ControlClass::Button && ButtonKind(*other) == kAutoRadioButton) {
      other->checked = other == control;
    }
  }
}

bool IsPushButton(const HeadlessWindow& control) {
  constexpr std::uint32_t kPushButton = 0;
  constexpr std::uint32_t kDefaultPushButton = 1;
  if (control.controlClass != ControlClass::Button) return false;
  return ButtonKind(control) == kPushButton || ButtonKind(control) == kDefaultPushButton;
}

WindowPointer ControlFind(WindowHandle dialog, int id) {
  const WindowPointer parent = Windows().Find(dialog);
  if (!parent) return nullptr;
  for (const WindowHandle child : parent->children) {
    const WindowPointer control = Windows().Find(child);
    if (control && control->id == id) return control;
  }
  return nullptr;
}

WindowPointer ControlUse(WindowHandle dialog, int id, const char* call) {
  if (!WindowUse(dialog, call)) return nullptr;
  WindowPointer control = ControlFind(dialog, id);
  if (!control) Failure(Deed(call, dialog, id) + ": there is no such control");
  return control;
}

WindowPointer ControlAsked(WindowHandle dialog, int id, const char* call) {
  if (!dialog) Failure(std::string(call) + " " + std::to_string(id) + ": no dialog is open");
  return ControlUse(dialog, id, call);
}

WindowHandle Control(WindowHandle dialog, int id) {
  const WindowPointer control = ControlUse(dialog, id, "Control");
  return control ? control->handle : nullptr;
}

Rect ControlPlace(WindowHandle dialog, int id) {
  const WindowPointer control = ControlUse(dialog, id, "ControlPlace");
  return control ? control->rect : Rect{};
}

void ControlSetText(WindowHandle dialog, int id, const char* text) {
  const WindowPointer control = ControlUse(dialog, id, "ControlSetText");
  if (!control) return;
  if (control->controlClass == ControlClass::ComboBox && (control->style & 3U) == 3) return;
  control->text = text;
  // A one-line edit field reports every change, whoever made it.
  if (control->controlClass == ControlClass::Edit && (control->style & kStyleMultiline) == 0) {
    ControlTells(*control, EventKind::Edited);
  }
}

int ControlGetText(WindowHandle dialog, int id, char* buffer, int size) {
  if (size <= 0) return 0;
  buffer[0] = '\0';
  const WindowPointer control = ControlUse(dialog, id, "ControlGetText");
  if (!control) return 0;
  const std::size_t length = std::min(control->text.size(), static_cast<std::size_t>(size) - 1);
  std::memcpy(buffer, control->text.data(), length);
  buffer[length] = '\0';
  return static_cast<int>(length);
}

void ControlEnable(WindowHandle dialog, int id, bool enable) {
  const WindowPointer control = ControlUse(dialog, id, "ControlEnable");
  if (control) control->enabled = enable;
}

void ControlShow(WindowHandle dialog, int id, bool show) {
  const WindowPointer control = ControlUse(dialog, id, "ControlShow");
  if (control) control->visible = show;
}

void ControlSetFocus(WindowHandle dialog, int id) {
  const WindowPointer control = ControlUse(dialog, id, "ControlSetFocus");
  if (control && control->enabled) focusWindow = control->handle;
}

void ControlSetLimit(WindowHandle dialog, int id, int characters) {
  const WindowPointer control = ControlUse(dialog, id, "ControlSetLimit");
  if (!control) return;
  const bool field =
      control->controlClass == ControlClass::Edit || control->controlClass == ControlClass::ComboBox;
  if (!field) Failure(Deed("ControlSetLimit", dialog, id) + ": the control takes no text");
  control->limit = characters > 0 ? characters : 32767;
}

void ControlSetChecked(WindowHandle dialog, int id, bool checked) {
  const WindowPointer control = ControlUse(dialog, id, "ControlSetChecked");
  if (!control) return;
  if (IsCheckControl(*control)) {
    control->checked = checked;
  } else {
    Failure(Deed("ControlSetChecked", dialog, id) + ": the control has no mark");
  }
}

bool ControlIsChecked(WindowHandle dialog, int id) {
  const WindowPointer control = ControlUse(dialog, id, "ControlIsChecked");
  return control && control->checked;
}

WindowHandle ControlCreate(WindowHandle parent, ControlKind kind, int id, const Rect& place,
                           const char* text) {
  if (FaultMeets(FaultKind::Window)) return nullptr;
  const WindowPointer found = WindowUse(parent, "ControlCreate");
  if (!found) return nullptr;
  auto control = std::make_shared<HeadlessWindow>();
  control->kind = WindowKind::Control;
  control->parent = parent;
  control->id = id;
  control->rect = place;
  control->text = text ? text : "";
  control->visible = true;
  switch (kind) {
    case ControlKind::Button:
      control->controlClass = ControlClass::Button;
      control->style = kStyleTabStop;
      break;
    case ControlKind::ListBox:
      control->controlClass = ControlClass::ListBox;
      control->style = kListNotify | kListSort;
      break;
    case ControlKind::VerticalScrollBar:
      control->controlClass = ControlClass::ScrollBar;
      control->style = 1;
      break;
  }
  const WindowHandle handle = WindowAdd(control);
  found->children.push_back(handle);
  return handle;
}

void ScrollBarSet(WindowHandle bar, int lines, int page, int position) {
  const WindowPointer found = WindowUse(bar, "ScrollBarSet");
  if (!found) return;
  // The bar keeps its thumb inside its range.
  lines = std::max(lines, 0);
  page = std::clamp(page, 0, lines);
  const int last = std::max(0, lines - std::max(page, 1));
  found->scroll.lines = lines;
  found->scroll.page = page;
  found->scroll.position = std::clamp(position, 0, last);
}

void ScrollBarEnable(WindowHandle bar, bool enable) {
  const WindowPointer found = WindowUse(bar, "ScrollBarEnable");
  if (found) found->scroll.enabled = enable;
}

ScrollState ScrollBarState(WindowHandle bar) {
  const WindowPointer found = Windows().Find(bar);
  return found ? found->scroll : ScrollState{};
}

bool ControlIsEnabled(WindowHandle dialog, int id) {
  const WindowPointer control = ControlAsked(dialog, id, "ControlIsEnabled");
  return control && control->enabled;
}

bool ControlIsVisible(WindowHandle dialog, int id) {
  const WindowPointer control = ControlAsked(dialog, id, "ControlIsVisible");
  return control && control->visible;
}

std::string ControlText(WindowHandle dialog, int id) {
  const WindowPointer control = ControlAsked(dialog, id, "ControlText");
  return control ? control->text : std::string();
}
