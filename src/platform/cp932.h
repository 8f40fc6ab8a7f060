// Texts of code page 932.
#pragma once

#include <cstddef>
#include <string>

// True for a byte that begins a double-byte pair.
inline bool Cp932Leads(char first) {
  const auto value = static_cast<unsigned char>(first);
  return (value >= 0x81 && value <= 0x9F) || (value >= 0xE0 && value <= 0xFC);
}

// How many bytes of `text` go into `most` bytes, with no double-byte pair cut in two.
inline std::size_t Cp932Cut(const std::string& text, std::size_t most) {
  if (text.size() <= most) return text.size();
  std::size_t at = 0;
  while (at < most) {
    const std::size_t step = Cp932Leads(text[at]) ? 2 : 1;
    if (at + step > most) break;
    at += step;
  }
  return at;
}
