// The dialogs in which a scenario, a scenario folder and a scene are set up, and from which
// all others are opened.
#pragma once

#include "platform/types.h"

// RoutSnrySetting: the scenario. It sends the save of it by itself.
void RoutSnrySettingRun(WindowHandle owner);

// SnryFolderSetting: the current scenario folder. When it has changed something the main
// file is saved.
void SnryFolderSettingRun(WindowHandle owner);

// SnryFileSetting: the current scene.
void SnryFileSettingRun(WindowHandle owner);

// Saves the main file, and tells when that fails; nothing counts as changed any more.
void SnrySaveTold(WindowHandle owner);
