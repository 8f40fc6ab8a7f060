#include "filetools/divide/cof_record.h"

#include <cstring>

#include "filetools/divide/div_scramble.h"
#include "filetools/divide/divide_state.h"
#include "platform/file.h"
#include "services/big_endian.h"
#include "services/path.h"
#include "services/text.h"

namespace {

struct Field {
  int offset;
  int size;
  std::int32_t keyPos;
};
constexpr Field kFields[] = {{0, 4, 0}, {4, 4, 4}, {8, kCofNameSize, 8}};

}  // namespace

bool DivWriteRecord(int file, std::int32_t number, std::int32_t value, const char* path) {
  std::uint8_t raw[kCofRecordSize] = {};
  PutBE32(raw, static_cast<std::uint32_t>(number));
  PutBE32(raw + 4, static_cast<std::uint32_t>(value));
  PathSplit(path);
  char name[kCofNameSize] = {};
  TextCopy(name, sizeof name, PathParts.PathName);
  std::memcpy(raw + 8, name, sizeof name);
  for (const Field& field : kFields) {
    std::uint8_t* at = raw + field.offset;
    DivScramble(field.keyPos, field.size, at, at, FileDivide.recordTableCursor);
  }
  return FileWrite(file, raw, kCofRecordSize) == kCofRecordSize;
}

bool DivReadRecord(int file, CofRecord& record) {
  std::uint8_t raw[kCofRecordSize];
  if (FileRead(file, raw, kCofRecordSize) != kCofRecordSize) return false;
  for (const Field& field : kFields) {
    std::uint8_t* at = raw + field.offset;
    DivUnscramble(field.keyPos, field.size, at, at, FileDivide.recordTableCursor);
  }
  record.number = static_cast<std::int32_t>(GetBE32(raw));
  record.value = static_cast<std::int32_t>(GetBE32(raw + 4));
  std::memcpy(record.name, raw + 8, kCofNameSize);
  record.name[kCofNameSize - 1] = '\0';  // bounded: a damaged name may lack its end
  return true;
}
