// The records of a joining file. Numbers are big-endian.
#pragma once

#include "filetools/divide/divide_state.h"
#include "services/record.h"

inline constexpr int kCofNameSize = 300;

// What a joining file begins with, of FileDivide, never scrambled, 101 bytes
//
// offset  size  field
//      0     1  encryptFlag
//      1   100  keyBlock
template <class Io>
constexpr void Fields(Io& io, FileDivideState& state) {
  io.U8(state.encryptFlag);
  io.Bytes(state.keyBlock);
}
static_assert(RecordSize<FileDivideState>() == 101);

// A record behind it, 308 bytes, each field scrambled by itself
//
// offset  size  head record          piece record
//      0     4  0                    ordinal, from 1
//      4     4  number of pieces     bytes in the piece
//      8   300  name of the source   name of the piece
//
// A field's offset is also where the keyword begins at its start; the table runs on
// through all records of the file. Names are without a folder.
struct CofRecord {
  std::int32_t number;
  std::int32_t value;
  char name[kCofNameSize];
};

template <class Io>
constexpr void Fields(Io& io, CofRecord& record) {
  io.BE32(record.number);
  io.BE32(record.value);
  io.Text(record.name);
}
static_assert(RecordSize<CofRecord>() == 308);

// Writes a record with the name of `path` at the file's place. False if it came
// short. Moves recordTableCursor on.
bool DivWriteRecord(int file, std::int32_t number, std::int32_t value, const char* path);

// Reads the next record. False if it came short; `record` is then unchanged.
bool DivReadRecord(int file, CofRecord& record);
