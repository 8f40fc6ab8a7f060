// The key block of a division: where the scramble table hides in the joining
// file.
//
// The first 96 of its 100 bytes are 17 runs, random ones and data runs by turns.
// Each of the 8 data runs is 7 bytes and makes 20 bytes of the table:
//
//   offset  size   content
//        0     4   random
//        4     1   A, added to every value of the pattern
//        5     1   random
//        6     1   B, whose remainder by 10 chooses the pattern
#pragma once

#include <cstdint>

// 0 if n is below 2, else a pseudo-random value from 0 to n - 1.
std::int32_t DivRandom(std::int32_t n);

// Fills keyBlock, but for its last 4 bytes, and scrambleTable for a new division.
void DivBuildKeyBlock();

// Makes scrambleTable again from the keyBlock that was read.
void DivLoadKeyBlock();
