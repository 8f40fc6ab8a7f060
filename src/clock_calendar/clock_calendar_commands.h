// Commands of the clock and the calendar.
#pragma once

#include <cstdint>

#include "services/commands.h"

void ClockCommand(Command command);
void CalendarCommand(Command command);
