// Commands of the calendar.
#pragma once

#include <cstdint>

#include "services/commands.h"

void CalendarCommand(Command command);
