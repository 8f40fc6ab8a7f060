// Texts of code page 932, as all backends hand them out.
#pragma once

#include <cstddef>
#include <string>

// How many bytes of `text` go into `most` bytes, with no double-byte pair cut in two.
inline std::size_t Cp932Cut(const std::string& text, std::size_t most) {
  if (text.size() <= most) return text.size();
  std::size_t at = 0;
  while (at < most) {
    const auto c = static_cast<unsigned char>(text[at]);
    const bool lead = (c >= 0x81 && c <= 0x9F) || (c >= 0xE0 && c <= 0xFC);
    const std::size_t step = lead ? 2 : 1;
    if (at + step > most) break;
    at += step;
  }
  return at;
}
