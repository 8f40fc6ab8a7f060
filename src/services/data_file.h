// Reading and writing the data files, field by field.
//
// A reader or writer stops at the first short transfer: from then on every call
// does nothing and says false, so a list of fields is written down once and
// asked about at its end. A number or block that came short is left as it was,
// but for raw blocks, which keep the bytes that did arrive.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "platform/file.h"

struct FileResultState {
  // The one result of file operations: 0 done, -1 cannot open or create, -2 short
  // transfer or wrong magic; a caller of a picker may set 1 beforehand. Some
  // features add values of their own.
  int FileStatus = 0;
};
extern FileResultState FileResult;

struct DataFile {
  int file = kNoFile;
  bool failed = false;
  bool created = false;  // DataReplace got as far as an empty new file
};

// Opens for reading. False, with FileStatus -1, when it cannot be opened.
bool DataOpenRead(DataFile& data, const char* path, OpenMode mode);

// Replaces a file: if it opens it is closed and deleted, then it is created,
// closed and opened again for read and write. False, with FileStatus -1, when
// it cannot be created or opened; the old file is gone by then.
bool DataReplace(DataFile& data, const char* path);

// Closes; `data` can be used again.
void DataClose(DataFile& data);

// Closes, sets FileStatus -2 and returns -1: what most formats do at the first
// short transfer.
int DataFailShort(DataFile& data);

// The same, but returns -2 as FileStatus does: the formats that give their callers the
// status.
int DataFailStatus(DataFile& data);

bool DataRead(DataFile& data, void* to, int size);
// Reads as many bytes as a magic has. False when they differ from it; only a short read
// makes the file fail.
template <std::size_t N>
bool DataMagicRead(DataFile& data, const char (&magic)[N]) {
  constexpr std::size_t kSize = N - 1;
  char found[kSize];
  return DataRead(data, found, static_cast<int>(kSize)) && std::memcmp(found, magic, kSize) == 0;
}
bool DataReadByte(DataFile& data, std::uint8_t& to);
bool DataReadBE16(DataFile& data, std::uint16_t& to);
bool DataReadBE32(DataFile& data, std::uint32_t& to);
bool DataReadBE32(DataFile& data, std::int32_t& to);

bool DataWrite(DataFile& data, const void* from, int size);
bool DataWriteByte(DataFile& data, std::uint8_t value);
bool DataWriteBE16(DataFile& data, std::uint16_t value);
bool DataWriteBE32(DataFile& data, std::uint32_t value);
