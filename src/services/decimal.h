// Numbers that the user types.
#pragma once

#include <cstdint>

// Reads a decimal number: blanks before it are skipped, a "-" in front negates. An empty
// text is 0.
// kept: in a typed number every character counts as its code less that of "0", with no test
// whether it is a digit.
std::int32_t DecimalParse(const char* text);
