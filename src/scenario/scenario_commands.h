// The scenario's numbered commands, as the main window routes them.
#pragma once

void CommandScenarioLoad();    // 1923: SnryMainLoad, then RoutSnrySetting
void CommandScenarioDelete();  // 1924: SnryMainDelete
void CommandScenarioNew();     // 1926: NewSnryMainDlg, then RoutSnrySetting
void CommandScenarioSave();    // 2117: list and main file, while RoutSnrySetting is open
void CommandScenarioBackground();  // 2272: a bitmap for the scenario's folder of backgrounds
