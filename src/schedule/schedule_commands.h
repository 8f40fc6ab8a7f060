// Commands of the schedule subsystem.
#pragma once

#include <cstdint>

#include "services/commands.h"

// 2026 to 2028, 2035, 2368 to 2370: nothing.
void ScheduleCommand(Command command);

// 2372: the change of the executing application that waits is made, and its schedule is
// carried out.
void CommandApplicationHandOff();
