// The scenario's numbered commands, as the main window routes them.
#pragma once

#include "services/commands.h"

void CommandScenarioLoad();    // 1923: SnryMainLoad, then RoutSnrySetting
void CommandScenarioDelete();  // 1924: SnryMainDelete
void CommandScenarioNew();     // 1926: NewSnryMainDlg, then RoutSnrySetting
void CommandScenarioSave();    // 2117: list and main file, while RoutSnrySetting is open
void ScenarioCommand(Command command);
