#include "filetools/div_scramble.h"

#include <algorithm>
#include <cstring>

#include "filetools/file_divide.h"

namespace {

// The keyword repeats after 1 to 8 bytes and the table after 160, so that what
// is added to the bytes repeats after a number of bytes that divides this one,
// for every length of keyword.
constexpr std::int32_t kPeriod = 3360;

// Bytes added at once; the inner loop has a fixed length so that it becomes a
// few vector instructions.
constexpr std::int32_t kStride = 96;
static_assert(kPeriod % kStride == 0);

void Add(std::int32_t length, const std::uint8_t* in, std::uint8_t* out, const std::uint8_t* pattern) {
  std::int32_t at = 0;
  for (; at + kStride <= length; at += kStride) {
    std::uint8_t bytes[kStride];
    std::memcpy(bytes, in + at, kStride);
    for (int i = 0; i < kStride; ++i) bytes[i] = static_cast<std::uint8_t>(bytes[i] + pattern[at + i]);
    std::memcpy(out + at, bytes, kStride);
  }
  for (; at < length; ++at) out[at] = static_cast<std::uint8_t>(in[at] + pattern[at]);
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
  std::int32_t cursor = tableCursor;
  std::uint8_t pattern[kPeriod];
  for (std::int32_t i = 0; i < std::min(length, kPeriod); ++i) {
    if (keyPos >= keyLength) keyPos = 0;
    const int add = static_cast<std::uint8_t>(FileDivide.keyword[keyPos]) - FileDivide.scrambleTable[cursor];
    pattern[i] = static_cast<std::uint8_t>(forward ? add : -add);
    ++keyPos;
    if (++cursor >= kDivTableSize) cursor = 0;
  }
  for (std::int32_t at = 0; at < length; at += std::min(kPeriod, length - at)) {
    Add(std::min(kPeriod, length - at), in + at, out + at, pattern);
  }
  if (length > kPeriod) {
    // The pattern ended where it began; only the rest past its last whole round counts.
    const std::int32_t rest = length % kPeriod;
    keyPos = (keyPos - 1 + rest) % keyLength + 1;
    cursor = (cursor + rest) % kDivTableSize;
  }
  tableCursor = cursor;
  return keyPos;
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
