#include "services/data_file.h"

#include "services/record.h"

FileResultState FileResult;

bool DataOpenRead(DataFile& data, const char* path, OpenMode mode) {
  data.file = FileOpen(path, mode);
  data.failed = data.file == kNoFile;
  if (data.failed) FileResult.FileStatus = -1;
  return !data.failed;
}

bool DataReplace(DataFile& data, const char* path) {
  // kept: an old data file is gone before the new one is written.
  const int old = FileOpen(path, OpenMode::ReadWrite);
  FileClose(old);
  if (old != kNoFile) FileDelete(path);
  const int created = FileCreate(path);
  FileClose(created);
  data.created = created != kNoFile;
  data.file = created == kNoFile ? kNoFile : FileOpen(path, OpenMode::ReadWrite);
  data.failed = data.file == kNoFile;
  if (data.failed) FileResult.FileStatus = -1;
  return !data.failed;
}

void DataClose(DataFile& data) {
  FileClose(data.file);
  data = DataFile{};
}

int DataFailShort(DataFile& data) {
  DataClose(data);
  FileResult.FileStatus = -2;
  return -1;
}

int DataFailStatus(DataFile& data) {
  DataFailShort(data);
  return FileResult.FileStatus;
}

bool DataRead(DataFile& data, void* to, int size) {
  if (!data.failed) data.failed = FileRead(data.file, to, size) != size;
  return !data.failed;
}

bool DataReadByte(DataFile& data, std::uint8_t& to) {
  return DataRead(data, &to, 1);
}

namespace {

// A number by itself is a record of one field.
template <class T, int Width>
struct One {
  T value;
};
template <class Io, class T, int Width>
constexpr void Fields(Io& io, One<T, Width>& one) {
  if constexpr (Width == 2) {
    io.BE16(one.value);
  } else {
    io.BE32(one.value);
  }
}

template <int Width, class T>
bool ReadNumber(DataFile& data, T& to) {
  unsigned char raw[Width];
  One<T, Width> one{to};
  if (DataRead(data, raw, Width) && RecordTake(one, raw, Width)) to = one.value;
  return !data.failed;
}

template <int Width, class T>
bool WriteNumber(DataFile& data, T value) {
  unsigned char raw[Width] = {};
  RecordPut(One<T, Width>{value}, raw, Width);
  return DataWrite(data, raw, Width);
}

}  // namespace

bool DataReadBE16(DataFile& data, std::uint16_t& to) {
  return ReadNumber<2>(data, to);
}

bool DataReadBE32(DataFile& data, std::uint32_t& to) {
  return ReadNumber<4>(data, to);
}

bool DataReadBE32(DataFile& data, std::int32_t& to) {
  return ReadNumber<4>(data, to);
}

bool DataWrite(DataFile& data, const void* from, int size) {
  if (!data.failed) data.failed = FileWrite(data.file, from, size) != size;
  return !data.failed;
}

bool DataWriteByte(DataFile& data, std::uint8_t value) {
  return DataWrite(data, &value, 1);
}

bool DataWriteBE16(DataFile& data, std::uint16_t value) {
  return WriteNumber<2>(data, value);
}

bool DataWriteBE32(DataFile& data, std::uint32_t value) {
  return WriteNumber<4>(data, value);
}
