
#include "platform/dialog.h"
#include "platform/headless/state.h"
#include "platform/posix/faults.h"
#include "platform/screen.h"
#include "platform/window.h"

namespace {

constexpr std::uint32_t kStyleVisible = 0x10000000;
constexpr std::uint32_t kStyleDisabled = 0x08000000;
constexpr std::uint32_t kStyleCaption = 0x00C00000;
constexpr std::uint32_t kStyleBorder = 0x00800000;
constexpr std::uint32_t kStyleSystemMenu = 0x00080000;
constexpr std::uint32_t kStyleSizeFrame = 0x00040000;
constexpr std::uint32_t kStyleTabStop = 0x00010000;
constexpr std::uint32_t kStyleModalFrame = 0x80;
constexpr std::uint32_t kStyleCentre = 0x800;
constexpr int kDialogFrame = 3;
constexpr int kPixelsPerUnit = 2;
constexpr int kForcedResult = 2;

// The edges around the client area of a dialog of that look.
Rect BorderOf(std::uint32_t style, int menuId) {
  int frame = 0;
  if ((style & kStyleSizeFrame) != 0) {
    frame = ScreenMetric(Metric::FrameWidth);
  } else if ((style & kStyleModalFrame) != 0 || (style & kStyleCaption) == kStyleCaption) {
    frame = kDialogFrame;
  } else if ((style & kStyleBorder) != 0) {
    frame = 1;
  }
  int top = frame;
  if ((style & kStyleCaption) == kStyleCaption) top += ScreenMetric(Metric::CaptionHeight);
  if (menuId != 0) top += ScreenMetric(Metric::MenuHeight);
  return {frame, top, frame, frame};
}

void AddControl(const WindowPointer& dialog, const ResourceControl& from) {
  auto control = std::make_shared<HeadlessWindow>();
  control->kind = WindowKind::Control;
  control->parent = dialog->handle;
  control->id = static_cast<int>(static_cast<std::int32_t>(from.id));
  control->controlClass = from.controlClass;
  control->style = from.style;
  control->text = from.text;
  control->visible = (from.style & kStyleVisible) != 0;
  control->enabled = (from.style & kStyleDisabled) == 0;
  control->rect = {from.x * kPixelsPerUnit, from.y * kPixelsPerUnit, (from.x + from.width) * kPixelsPerUnit,
                   (from.y + from.height) * kPixelsPerUnit};
  dialog->children.push_back(WindowAdd(control));
}

// Null, with a failure, when there is no such template.
WindowPointer Make(WindowKind kind, int templateId, WindowHandle owner, EventHandler handler, void* context) {
  if (owner && !WindowUse(owner, "the owner of a dialog")) return nullptr;
  const auto at = Resources().dialogs.find(templateId);
  if (at == Resources().dialogs.end()) {
    Failure("no dialog template " + std::to_string(templateId) + " in the resources");
    return nullptr;
  }
  const ResourceDialog& from = at->second;
  auto dialog = std::make_shared<HeadlessWindow>();
  dialog->kind = kind;
  dialog->parent = owner;
  dialog->templateId = templateId;
  dialog->handler = handler;
  dialog->context = context;
  dialog->text = from.caption;
  dialog->style = from.style;
  dialog->border = BorderOf(from.style, from.menuId);
  const int width = from.width * kPixelsPerUnit + dialog->border.left + dialog->border.right;
  const int height = from.height * kPixelsPerUnit + dialog->border.top + dialog->border.bottom;
  Point at2{from.x * kPixelsPerUnit, from.y * kPixelsPerUnit};
  if ((from.style & kStyleCentre) != 0) {
    at2 = {(ScreenMetric(Metric::FullScreenWidth) - width) / 2,
           (ScreenMetric(Metric::FullScreenHeight) - height) / 2};
  } else if (const WindowPointer parent = Windows().Find(owner); parent) {
    const Point origin = ClientOrigin(*parent);
    at2 = {at2.x + origin.x, at2.y + origin.y};
  }
  dialog->rect = {at2.x, at2.y, at2.x + width, at2.y + height};
  WindowAdd(dialog);
  for (const ResourceControl& control : from.controls) AddControl(dialog, control);
  return dialog;
}

void SendInit(const WindowPointer& dialog) {
  Event event;
  event.kind = EventKind::Init;
  event.window = dialog->handle;
  focusWindow = dialog->handle;
  EventSend(event);
  if (focusWindow != dialog->handle || !dialog->alive) return;
  // The keyboard goes to the first control that takes it.
  for (const WindowHandle child : dialog->children) {
    const WindowPointer control = Windows().Find(child);
    if (control->visible && control->enabled && (control->style & kStyleTabStop) != 0) {
      focusWindow = child;
      return;
    }
  }
}

}  // namespace

namespace {

// Runs a modal dialog that has been made.
int Run(const WindowPointer& dialog, WindowHandle owner) {
  const WindowHandle handle = dialog->handle;
  const WindowHandle focusBefore = focusWindow;
  const WindowPointer ownerWindow = OwnerOf(owner, "the owner of a dialog");
  const bool ownerEnabled = ownerWindow && ownerWindow->enabled;
  if (ownerWindow) ownerWindow->enabled = false;
  modalStack.push_back(handle);

  SendInit(dialog);
  if (!dialog->ended) WindowSetVisible(dialog, true);
  while (!dialog->ended && dialog->alive && !quitAsked) {
    PaintDue();
    if (dialog->ended || ScriptStep()) continue;
    Failure("the script is empty while dialog " + std::to_string(dialog->templateId) + " " +
            Quoted(dialog->text) + " is open");
    dialog->ended = true;
    dialog->result = kForcedResult;
  }

  std::erase(modalStack, handle);
  if (ownerWindow && ownerEnabled) ownerWindow->enabled = true;
  WindowRemove(handle, true);
  if (Windows().Find(focusBefore)) focusWindow = focusBefore;
  return dialog->result;
}

void AddButton(const WindowPointer& sheet, int id, bool enabled) {
  ResourceControl button;
  button.controlClass = ControlClass::Button;
  button.id = id;
  button.style =
      kStyleVisible | kStyleTabStop | (id == kOkButton ? 1U : 0U) | (enabled ? 0U : kStyleDisabled);
  AddControl(sheet, button);
}

}  // namespace

int DialogRun(int templateId, WindowHandle owner, EventHandler handler, void* context) {
  if (FaultMeets(FaultKind::Window)) return -1;
  const WindowPointer dialog = Make(WindowKind::Modal, templateId, owner, handler, context);
  return dialog ? Run(dialog, owner) : -1;
}

int SheetWindowRun(WindowHandle owner, const char* caption, EventHandler handler, void* context) {
  if (FaultMeets(FaultKind::Window)) return -1;
  auto sheet = std::make_shared<HeadlessWindow>();
  sheet->kind = WindowKind::Modal;
  sheet->parent = owner;
  sheet->handler = handler;
  sheet->context = context;
  sheet->text = caption;
  sheet->style = kStyleCaption | kStyleSystemMenu;
  WindowAdd(sheet);
  AddButton(sheet, kOkButton, true);
  AddButton(sheet, kCancelButton, true);
  AddButton(sheet, kSheetApplyButton, false);
  return Run(sheet, owner);
}

WindowHandle SheetPageMake(WindowHandle sheet, const SheetPage& page) {
  if (FaultMeets(FaultKind::Window)) return nullptr;
  const WindowPointer made = Make(WindowKind::Page, page.templateId, sheet, page.handler, page.context);
  if (!made) return nullptr;
  made->visible = false;
  SendInit(made);
  return made->handle;
}

WindowHandle DialogOpen(int templateId, WindowHandle owner, EventHandler handler, void* context) {
  if (FaultMeets(FaultKind::Window)) return nullptr;
  const WindowPointer dialog = Make(WindowKind::Modeless, templateId, owner, handler, context);
  if (!dialog) return nullptr;
  SendInit(dialog);
  if (!dialog->alive) return nullptr;
  if ((dialog->style & kStyleVisible) != 0) WindowSetVisible(dialog, true);
  return dialog->handle;
}

void DialogEnd(WindowHandle dialog, int result) {
  const WindowPointer found = WindowUse(dialog, "DialogEnd");
  if (!found) return;
  WindowSetVisible(found, false);
  if (found->kind != WindowKind::Modal || found->ended) return;
  found->ended = true;
  found->result = result;
}

Rect DialogUnits(WindowHandle dialog, const Rect& units) {
  if (!WindowUse(dialog, "DialogUnits")) return {};
  return {units.left * kPixelsPerUnit, units.top * kPixelsPerUnit, units.right * kPixelsPerUnit,
          units.bottom * kPixelsPerUnit};
}

int MessageLoop(WindowHandle window, int acceleratorId) {
  if (acceleratorId != 0 && !Resources().accelerators.contains(acceleratorId)) {
    Failure("MessageLoop: no accelerators " + std::to_string(acceleratorId) + " in the resources");
  }
  WindowUse(window, "MessageLoop");
  loopWindow = window;
  loopAccelerators = acceleratorId;
  while (!quitAsked && !nextLoopIsLeft) {
    PaintDue();
    if (quitAsked || ScriptStep()) continue;
    Failure("the script is empty while the message loop runs");
    break;
  }
  nextLoopIsLeft = false;
  loopWindow = nullptr;
  loopAccelerators = 0;
  return quitCode;
}

WindowHandle TopDialog() {
  return modalStack.empty() ? nullptr : modalStack.back();
}

WindowHandle FindDialog(int templateId) {
  WindowHandle found = nullptr;
  for (const auto& [number, window] : Windows().All()) {
    const bool dialog = window->kind == WindowKind::Modal || window->kind == WindowKind::Modeless ||
                        window->kind == WindowKind::Page;
    if (dialog && window->templateId == templateId) found = window->handle;
  }
  return found;
}
