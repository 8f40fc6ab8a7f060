// Commands of the scenario subsystem.
#pragma once

#include <cstdint>

#include "services/commands.h"

void ScenarioCommand(Command command);
