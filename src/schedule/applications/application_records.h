// The records of mirrell_apli_list_file.ali, behind its magic. Numbers are big-endian.
#pragma once

#include "services/record.h"

inline constexpr int kApliPathSize = 600;

// The head of the list, 12 bytes
//
// offset  size  field
//      0     4  count of the entries
//      4     4  second count
//      8     4  selected entry, from 1
struct ApliHead {
  std::int32_t count;
  std::int32_t second;
  std::int32_t selected;
};

template <class Io>
constexpr void Fields(Io& io, ApliHead& head) {
  io.BE32(head.count);
  io.BE32(head.second);
  io.BE32(head.selected);
}
static_assert(RecordSize<ApliHead>() == 12);

// A full path, 600 bytes.
struct ApliEntry {
  char path[kApliPathSize];
};

template <class Io>
constexpr void Fields(Io& io, ApliEntry& entry) {
  io.Text(entry.path);
}
static_assert(RecordSize<ApliEntry>() == 600);
