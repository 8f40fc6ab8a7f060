#include "services/text.h"

#include <cstdarg>
#include <cstdio>
#include <cstring>

std::size_t TextCopy(char* to, std::size_t size, const char* from) {
  if (size == 0) return 0;
  const std::size_t length = TextLength(from, size - 1);
  std::memmove(to, from, length);
  to[length] = '\0';
  return length;
}

std::size_t TextCopyWhole(char* to, std::size_t size, const char* from) {
  return size == 0 ? 0 : TextCopy(to, TextPrefix(from, size - 1) + 1, from);
}

std::size_t TextAppend(char* to, std::size_t size, const char* from) {
  const std::size_t length = TextLength(to, size);
  if (length >= size) return size;
  return length + TextCopy(to + length, size - length, from);
}

std::size_t TextLength(const char* text, std::size_t size) {
  const void* end = std::memchr(text, 0, size);
  return end ? static_cast<std::size_t>(static_cast<const char*>(end) - text) : size;
}

std::size_t TextPrefix(const char* text, std::size_t bytes) {
  std::size_t at = 0;
  while (at < bytes && text[at] != '\0') {
    const std::size_t step = IsSjisLead(text[at]) && text[at + 1] != '\0' ? 2 : 1;
    if (at + step > bytes) break;
    at += step;
  }
  return at;
}

int TextFormat(char* to, std::size_t size, const char* format, ...) {
  if (size == 0) return 0;
  va_list arguments;
  va_start(arguments, format);
  const int length = std::vsnprintf(to, size, format, arguments);
  va_end(arguments);
  if (length < 0) {
    to[0] = '\0';
    return 0;
  }
  return length < static_cast<int>(size) ? length : static_cast<int>(size) - 1;
}
