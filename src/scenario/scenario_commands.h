// Commands of the scenario subsystem.
#pragma once

#include <cstdint>

void ScenarioCommand(std::uint32_t number);
