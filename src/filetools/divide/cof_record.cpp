#include "filetools/divide/cof_record.h"

#include "filetools/divide/div_scramble.h"
#include "services/path.h"
#include "services/text.h"

namespace {

constexpr int kSize = RecordSize<CofRecord>();

// Where the fields begin, and where the last one ends.
constexpr int kFields[] = {RecordOffset<&CofRecord::number>(), RecordOffset<&CofRecord::value>(),
                           RecordOffset<&CofRecord::name>(), kSize};

void EachField(std::uint8_t (&raw)[kSize], DivCipher cipher) {
  for (const int* at = kFields; *at < kSize; ++at) {
    cipher(at[0], at[1] - at[0], raw + at[0], raw + at[0], FileDivide.recordTableCursor);
  }
}

}  // namespace

bool DivWriteRecord(int file, std::int32_t number, std::int32_t value, const char* path) {
  CofRecord record{number, value, ""};
  PathSplit(path);
  TextCopy(record.name, sizeof record.name, PathParts.PathName);
  std::uint8_t raw[kSize];
  RecordPut(record, raw, kSize);
  EachField(raw, DivScramble);
  return FileWrite(file, raw, kSize) == kSize;
}

bool DivReadRecord(int file, CofRecord& record) {
  std::uint8_t raw[kSize];
  if (FileRead(file, raw, kSize) != kSize) return false;
  EachField(raw, DivUnscramble);
  return RecordTake(record, raw, kSize);
}
