#include "clock_calendar/clock/clock.h"

ClockState Clock;
