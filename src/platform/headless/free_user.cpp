#include "platform/headless/free_user.h"

#include "platform/headless/state.h"

namespace {

constexpr std::uint32_t kStaticNotify = 0x100;
constexpr std::uint32_t kReadOnly = 0x800;
constexpr std::uint32_t kButtonKinds = 0xF;
constexpr std::uint32_t kGroupBox = 7;
constexpr std::uint32_t kComboKinds = 3;
constexpr std::uint32_t kComboList = 3;
constexpr std::uint32_t kSystemMenu = 0x00080000;
constexpr std::uint32_t kCaption = 0x00C00000;

// The roles of a control: a combo box that takes text has two.
std::vector<ControlRole> RolesOf(const HeadlessWindow& control) {
  switch (control.controlClass) {
    case ControlClass::Button:
      if ((control.style & kButtonKinds) == kGroupBox) return {};
      return {IsCheckControl(control) ? ControlRole::Turn : ControlRole::Push};
    case ControlClass::Static:
      return (control.style & kStaticNotify) != 0 ? std::vector{ControlRole::Label}
                                                  : std::vector<ControlRole>{};
    case ControlClass::Edit:
      return (control.style & kReadOnly) == 0 ? std::vector{ControlRole::Field} : std::vector<ControlRole>{};
    case ControlClass::ListBox:
      return {ControlRole::List};
    case ControlClass::ComboBox:
      return (control.style & kComboKinds) == kComboList ? std::vector{ControlRole::List}
                                                         : std::vector{ControlRole::List, ControlRole::Field};
    case ControlClass::ScrollBar:
      return control.scroll.enabled ? std::vector{ControlRole::Bar} : std::vector<ControlRole>{};
    default:
      return {};
  }
}

// The window can be reached: it is shown, and no dialog stands in front of it.
bool Reaches(const HeadlessWindow& window) {
  return window.alive && window.visible && OwnerOf(window.handle, "reach")->enabled;
}

}  // namespace

std::vector<ControlSeen> ControlsInReach(WindowHandle dialog) {
  std::vector<ControlSeen> seen;
  const WindowPointer parent = Windows().Find(dialog);
  if (!parent || !Reaches(*parent)) return seen;
  for (const WindowHandle child : parent->children) {
    const WindowPointer control = Windows().Find(child);
    if (!control->visible || !control->enabled || control->kind != WindowKind::Control) continue;
    for (const ControlRole role : RolesOf(*control)) {
      // A control is found by its number: of two with one number the first is meant.
      if (role != ControlRole::Bar && ControlFind(dialog, control->id) != control) continue;
      seen.push_back({child, control->id, role, static_cast<int>(control->rows.size())});
    }
  }
  return seen;
}

bool CloseReaches(WindowHandle window) {
  const WindowPointer found = Windows().Find(window);
  const bool system = found && (found->style & kSystemMenu) != 0;
  const bool caption = found && (found->style & kCaption) == kCaption;
  return found && found->visible && found->enabled && (system || !caption);
}

bool KeyGoesTo(WindowHandle window) {
  const WindowPointer found = Windows().Find(window);
  if (!found || !found->visible || !found->enabled) return false;
  const WindowPointer focus = Windows().Find(focusWindow);
  return !focus || focus->parent != window || focus->kind != WindowKind::Control;
}
