// The day of the desktop calendar that the user clicked last.
#pragma once

#include <cstdint>

// From 1, of the month on show; 0 for none. Set by the calendar's window, cleared
// when its popup menu closes with nothing chosen.
extern std::int32_t CalenClickedDay;
