// Commands of the schedule subsystem.
#pragma once

#include <cstdint>

#include "services/commands.h"

// All numbers of the schedule, the plans and the application list.
void ScheduleCommand(Command command);

// 2372: the change of the executing application that waits is made, and its schedule is
// carried out.
void CommandApplicationHandOff();
