// How often mail is asked for: the interval table.
#pragma once

#include <cstdint>

struct MailInterval {
  const char* label;   // of the combo box
  std::int32_t units;  // of 6000 ticks
};

// kept: the second mail interval is called " 3 分" and lasts two units.
inline constexpr MailInterval kMailIntervals[] = {
    {" 1 分", 1},   {" 3 分", 2},   {" 5 分", 5},    {" 10 分", 10},   {" 15 分", 15},   {" 20 分", 20},
    {" 30 分", 30}, {" 40 分", 40}, {" 1 時間", 60}, {" 2 時間", 120}, {" 4 時間", 240},
};

// kept: the last mail interval, " 4 時間", has no row and cannot be chosen.
inline constexpr int kMailIntervalRows = 10;
