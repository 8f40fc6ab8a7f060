// The panel's steps of the tick.
#include "platform/screen.h"
#include "platform/window.h"
#include "shell/panel.h"

namespace {

constexpr std::uint32_t kCloseCommand = 2;

void Close() {
  Panel.MenuPanelState = 0;
  SendCommand(Panel.hDiskMenu, kCloseCommand);
}

bool PointerIsInside() {
  const Point at = PointerPosition();
  return at.x >= Panel.MenuPanelRect.left && at.x < Panel.MenuPanelRect.right &&
         at.y >= Panel.MenuPanelRect.top && at.y < Panel.MenuPanelRect.bottom;
}

}  // namespace

void PanelGuardTick() {
  if (Panel.MenuReopenGuard > 0) --Panel.MenuReopenGuard;
}

int PanelGuardDue() {
  return TickDueIf(Panel.MenuReopenGuard > 0);
}

void PanelCountTick() {
  if (Panel.MenuPanelState != kPanelTop || Panel.MenuCloseCount == kMenuInside) return;
  if (Panel.MenuCloseCount != 0) --Panel.MenuCloseCount;
  if (Panel.MenuCloseCount == 0) Close();
}

void PanelPointerTick() {
  if (Panel.MenuPanelState != kPanelTop || Panel.MenuCloseCount != kMenuInside) return;
  if (!PointerIsInside()) Close();
}

int PanelDue() {
  return TickDueIf(Panel.MenuPanelState == kPanelTop || Panel.hDiskMenu);
}
