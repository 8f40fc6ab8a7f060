#include "clock_calendar/clicked_day.h"

std::int32_t CalenClickedDay;
