#include "scenario/scenario_commands.h"

#include "platform/window.h"
#include "shell/panel.h"

// The numbers are known and answered; their windows are not there yet, so all
// that is left of an entry is that the panel closes.
void ScenarioCommand(std::uint32_t) {
  SendClose(Panel.hDiskMenu);
  Panel.MenuPanelState = 0;
}
