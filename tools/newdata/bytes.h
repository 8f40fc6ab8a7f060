// Building files in memory, byte by byte.
#pragma once

#include <cstdint>
#include <vector>

#include "services/record.h"

using Bytes = std::vector<std::uint8_t>;

inline void AddText(Bytes& to, const char* text) {
  while (*text) to.push_back(static_cast<std::uint8_t>(*text++));
}

template <class T>
void AddRecord(Bytes& to, const T& record) {
  to.resize(to.size() + static_cast<std::size_t>(RecordSize<T>()));
  RecordPut(record, to.data() + to.size() - RecordSize<T>(), RecordSize<T>());
}

inline void AddLE16(Bytes& to, std::uint32_t value) {
  to.push_back(static_cast<std::uint8_t>(value));
  to.push_back(static_cast<std::uint8_t>(value >> 8U));
}

inline void AddLE32(Bytes& to, std::uint32_t value) {
  AddLE16(to, value);
  AddLE16(to, value >> 16U);
}

inline void AddBE16(Bytes& to, std::uint32_t value) {
  to.push_back(static_cast<std::uint8_t>(value >> 8U));
  to.push_back(static_cast<std::uint8_t>(value));
}

inline void AddBE32(Bytes& to, std::uint32_t value) {
  AddBE16(to, value >> 16U);
  AddBE16(to, value);
}
