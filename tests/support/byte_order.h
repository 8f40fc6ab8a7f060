// Big-endian numbers of the data files. The buffers need not be aligned.
#pragma once

#include <cstdint>

inline std::uint32_t GetBE32(const void* from) {
  const auto* b = static_cast<const unsigned char*>(from);
  return (std::uint32_t{b[0]} << 24U) | (std::uint32_t{b[1]} << 16U) | (std::uint32_t{b[2]} << 8U) | b[3];
}

inline void PutBE32(void* to, std::uint32_t value) {
  auto* b = static_cast<unsigned char*>(to);
  b[0] = static_cast<unsigned char>(value >> 24U);
  b[1] = static_cast<unsigned char>(value >> 16U);
  b[2] = static_cast<unsigned char>(value >> 8U);
  b[3] = static_cast<unsigned char>(value);
}

inline std::uint16_t GetBE16(const void* from) {
  const auto* b = static_cast<const unsigned char*>(from);
  return static_cast<std::uint16_t>((b[0] << 8U) | b[1]);
}

inline void PutBE16(void* to, std::uint16_t value) {
  auto* b = static_cast<unsigned char*>(to);
  b[0] = static_cast<unsigned char>(value >> 8U);
  b[1] = static_cast<unsigned char>(value);
}

// Little-endian numbers inside records that are stored as they stand in memory.
inline std::uint16_t GetLE16(const void* from) {
  const auto* b = static_cast<const unsigned char*>(from);
  return static_cast<std::uint16_t>(b[0] | (b[1] << 8U));
}

inline void PutLE16(void* to, std::uint16_t value) {
  auto* b = static_cast<unsigned char*>(to);
  b[0] = static_cast<unsigned char>(value);
  b[1] = static_cast<unsigned char>(value >> 8U);
}

inline std::uint32_t GetLE32(const void* from) {
  return GetLE16(from) | (std::uint32_t{GetLE16(static_cast<const unsigned char*>(from) + 2)} << 16U);
}

inline void PutLE32(void* to, std::uint32_t value) {
  PutLE16(to, static_cast<std::uint16_t>(value));
  PutLE16(static_cast<unsigned char*>(to) + 2, static_cast<std::uint16_t>(value >> 16U));
}
