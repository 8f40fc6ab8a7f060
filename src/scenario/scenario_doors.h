// The buttons of the scenario's dialogs that open a dialog of another room.
#pragma once

#include "platform/types.h"

// Opens what belongs to a button of RoutSnrySetting; false when nothing does.
bool SnryScenarioDoorOpen(int id, WindowHandle owner);

// The same of SnryFileSetting. Some need a member of the cast that is chosen
// (Scenario.castRow); without one nothing opens.
bool SnrySceneDoorOpen(int id, WindowHandle owner);
