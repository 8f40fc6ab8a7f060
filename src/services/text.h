// Code page 932 text in fixed buffers.
#pragma once

#include <cstddef>

// True if the byte begins a double-byte character: 128 or more, and below 166
// or from 224 on.
constexpr bool IsSjisLead(char byte) {
  const auto b = static_cast<unsigned char>(byte);
  return b >= 128 && (b < 166 || b >= 224);
}

// Copies text up to its terminator, at most size - 1 bytes, and terminates.
// The cut may fall inside a double-byte pair. Returns the length copied.
std::size_t TextCopy(char* to, std::size_t size, const char* from);

// The same, but the cut never splits a pair.
std::size_t TextCopyWhole(char* to, std::size_t size, const char* from);

// Appends in the same way as TextCopy; the length of the whole.
std::size_t TextAppend(char* to, std::size_t size, const char* from);

// The length of text in a field that may lack its terminator, at most `size`.
std::size_t TextLength(const char* text, std::size_t size);

// The longest prefix of at most `bytes` bytes that does not split a pair.
std::size_t TextPrefix(const char* text, std::size_t bytes);

// Formats into a fixed buffer, cut at size - 1 bytes. Returns the length kept.
int TextFormat(char* to, std::size_t size, const char* format, ...)
#if defined(__MINGW32__)
    __attribute__((format(gnu_printf, 3, 4)));
#else
    __attribute__((format(printf, 3, 4)));
#endif
