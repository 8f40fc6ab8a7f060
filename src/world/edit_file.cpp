#include "world/edit_file.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr int kMagicMax = 32;

int Fail(DataFile& data, int result) {
  DataClose(data);
  return result;
}

}  // namespace

int EditFileOpen(DataFile& data, const char* path, const char* magic) {
  if (!DataOpenRead(data, path, OpenMode::Read)) return kEditNotOpened;
  char found[kMagicMax];
  const std::size_t size = std::min(std::strlen(magic), sizeof found);
  if (!DataRead(data, found, static_cast<int>(size))) return Fail(data, kEditShort);
  return std::memcmp(found, magic, size) == 0 ? 0 : Fail(data, kEditWrongMagic);
}

void EditFileSkip(DataFile& data, std::uint64_t bytes) {
  char passed[4096];
  while (bytes > 0 && !data.failed) {
    const std::uint64_t piece = std::min<std::uint64_t>(bytes, sizeof passed);
    DataRead(data, passed, static_cast<int>(piece));
    bytes -= piece;
  }
}

int EditFileEnd(DataFile& data) {
  const bool whole = !data.failed;
  DataClose(data);
  return whole ? 0 : kEditShort;
}
