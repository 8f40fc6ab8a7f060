// Scrambling of bytes with the keyword and the scramble table.
#pragma once

#include <cstdint>

// Scrambles `length` bytes from `in` to `out`, which may be the same buffer: to
// every byte the keyword's byte is added and the table's is taken away. `keyPos`
// runs through the keyword and `tableCursor`, which is moved on, through the
// table (0 to 159). Returns the key position after the last byte. With
// encryptFlag 0 bytes are copied as they are and the cursor stays.
std::int32_t DivScramble(std::int32_t keyPos, std::int32_t length, const std::uint8_t* in, std::uint8_t* out,
                         std::int32_t& tableCursor);

// The reverse.
std::int32_t DivUnscramble(std::int32_t keyPos, std::int32_t length, const std::uint8_t* in,
                           std::uint8_t* out, std::int32_t& tableCursor);

// Either of the two.
using DivCipher = std::int32_t (*)(std::int32_t keyPos, std::int32_t length, const std::uint8_t* in,
                                   std::uint8_t* out, std::int32_t& tableCursor);
