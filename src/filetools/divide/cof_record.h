// One record of a joining file, 308 bytes, each field scrambled by itself:
//
//   offset  size   head record          piece record          key position
//        0     4   0                    ordinal, from 1       0
//        4     4   number of pieces     bytes in the piece    4
//        8   300   name of the source   name of the piece     8
//
// The key position is where the keyword begins at the field's start; the table
// runs on through all records of the file. Names are without a folder.
#pragma once

#include <cstdint>

inline constexpr int kCofRecordSize = 308;
inline constexpr int kCofNameSize = 300;

struct CofRecord {
  std::int32_t number;
  std::int32_t value;
  char name[kCofNameSize];  // always terminated
};

// Writes a record with the name of `path` at the file's place. False if it came
// short. Moves recordTableCursor on.
bool DivWriteRecord(int file, std::int32_t number, std::int32_t value, const char* path);

// Reads the next record. False if it came short; `record` is then unchanged.
bool DivReadRecord(int file, CofRecord& record);
