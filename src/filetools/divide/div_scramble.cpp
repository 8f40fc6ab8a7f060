#include "filetools/divide/div_scramble.h"

#include <algorithm>
#include <cstring>
#include <numeric>

#include "filetools/divide/divide_state.h"

namespace {

// The keyword repeats after 1 to 8 bytes and the table after 160, so that what
// is added to the bytes repeats after a number of bytes that divides this one,
// for every length of keyword. Whole rounds of the adding loop fill it, too.
constexpr std::int32_t kPeriod = 6720;

// Bytes that one instruction adds, each to its own.
using Lanes = std::uint8_t __attribute__((vector_size(16)));
constexpr std::int32_t kLanes = sizeof(Lanes);

void AddLanes(const std::uint8_t* in, std::uint8_t* out, const std::uint8_t* pattern) {
  Lanes bytes;
  Lanes added;
  std::memcpy(&bytes, in, kLanes);
  std::memcpy(&added, pattern, kLanes);
  bytes += added;
  std::memcpy(out, &bytes, kLanes);
}

void Add(std::int32_t length, const std::uint8_t* in, std::uint8_t* out, const std::uint8_t* pattern) {
  std::int32_t at = 0;
  for (; at + 4 * kLanes <= length; at += 4 * kLanes) {
    AddLanes(in + at, out + at, pattern + at);
    AddLanes(in + at + kLanes, out + at + kLanes, pattern + at + kLanes);
    AddLanes(in + at + 2 * kLanes, out + at + 2 * kLanes, pattern + at + 2 * kLanes);
    AddLanes(in + at + 3 * kLanes, out + at + 3 * kLanes, pattern + at + 3 * kLanes);
  }
  for (; at < length; ++at) out[at] = static_cast<std::uint8_t>(in[at] + pattern[at]);
}

// What is added to each of `length` bytes. Keyword and table meet again after
// `repeat` bytes; from there on the pattern is copied.
void MakePattern(bool forward, std::int32_t keyPos, std::int32_t cursor, std::int32_t keyLength,
                 std::int32_t length, std::uint8_t* pattern) {
  const std::int32_t repeat = std::lcm(keyLength, kDivTableSize);
  for (std::int32_t i = 0; i < std::min(length, repeat); ++i) {
    const int add = static_cast<std::uint8_t>(FileDivide.keyword[keyPos]) - FileDivide.scrambleTable[cursor];
    pattern[i] = static_cast<std::uint8_t>(forward ? add : -add);
    if (++keyPos >= keyLength) keyPos = 0;
    if (++cursor >= kDivTableSize) cursor = 0;
  }
  for (std::int32_t i = repeat; i < length; i += repeat) {
    std::memcpy(pattern + i, pattern, static_cast<std::size_t>(std::min(repeat, length - i)));
  }
}

std::int32_t Transform(bool forward, std::int32_t keyPos, std::int32_t length, const std::uint8_t* in,
                       std::uint8_t* out, std::int32_t& tableCursor) {
  if (length <= 0) return keyPos;
  if (FileDivide.encryptFlag == 0) {
    if (in != out) std::memmove(out, in, static_cast<std::size_t>(length));
    return keyPos + length;
  }
  // bounded: a joining file may turn the flag on while no keyword is set; its
  // bytes then meet the empty keyword's terminator.
  const std::int32_t keyLength = std::clamp(FileDivide.keywordLength, 1, kDivKeywordMax);
  if (keyPos >= keyLength) keyPos = 0;
  std::uint8_t pattern[kPeriod];
  MakePattern(forward, keyPos, tableCursor, keyLength, std::min(length, kPeriod), pattern);
  for (std::int32_t at = 0; at < length; at += std::min(kPeriod, length - at)) {
    Add(std::min(kPeriod, length - at), in + at, out + at, pattern);
  }
  tableCursor = (tableCursor + length % kDivTableSize) % kDivTableSize;
  return (keyPos + (length - 1) % keyLength) % keyLength + 1;
}

}  // namespace

std::int32_t DivScramble(std::int32_t keyPos, std::int32_t length, const std::uint8_t* in, std::uint8_t* out,
                         std::int32_t& tableCursor) {
  return Transform(true, keyPos, length, in, out, tableCursor);
}

std::int32_t DivUnscramble(std::int32_t keyPos, std::int32_t length, const std::uint8_t* in,
                           std::uint8_t* out, std::int32_t& tableCursor) {
  return Transform(false, keyPos, length, in, out, tableCursor);
}
