// Commands of the clock and the calendar.
#pragma once

#include <cstdint>

void ClockCommand(std::uint32_t number);
void CalendarCommand(std::uint32_t number);
