// Commands of the schedule subsystem.
#pragma once

#include <cstdint>

// All numbers of the schedule, the plans and the application list.
void ScheduleCommand(std::uint32_t number);
