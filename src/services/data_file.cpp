#include "services/data_file.h"

#include "services/big_endian.h"

FileResultState FileResult;

bool DataOpenRead(DataFile& data, const char* path, OpenMode mode) {
  data.file = FileOpen(path, mode);
  data.failed = data.file == kNoFile;
  if (data.failed) FileResult.FileStatus = -1;
  return !data.failed;
}

bool DataReplace(DataFile& data, const char* path) {
  // kept: the old file is gone before the new one is written.
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

bool DataReadBE16(DataFile& data, std::uint16_t& to) {
  unsigned char raw[2];
  if (DataRead(data, raw, sizeof raw)) to = GetBE16(raw);
  return !data.failed;
}

bool DataReadBE32(DataFile& data, std::uint32_t& to) {
  unsigned char raw[4];
  if (DataRead(data, raw, sizeof raw)) to = GetBE32(raw);
  return !data.failed;
}

bool DataReadBE32(DataFile& data, std::int32_t& to) {
  std::uint32_t value = 0;
  if (DataReadBE32(data, value)) to = static_cast<std::int32_t>(value);
  return !data.failed;
}

bool DataWrite(DataFile& data, const void* from, int size) {
  if (!data.failed) data.failed = FileWrite(data.file, from, size) != size;
  return !data.failed;
}

bool DataWriteByte(DataFile& data, std::uint8_t value) {
  return DataWrite(data, &value, 1);
}

bool DataWriteBE16(DataFile& data, std::uint16_t value) {
  unsigned char raw[2];
  PutBE16(raw, value);
  return DataWrite(data, raw, sizeof raw);
}

bool DataWriteBE32(DataFile& data, std::uint32_t value) {
  unsigned char raw[4];
  PutBE32(raw, value);
  return DataWrite(data, raw, sizeof raw);
}
