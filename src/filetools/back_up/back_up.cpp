#include "filetools/back_up/back_up.h"

#include <algorithm>
#include <cstring>

#include "platform/time.h"
#include "services/data_file.h"
#include "services/path.h"
#include "services/text.h"

BackUpRunState BackUpRun;

BackUpSet BackUp;

namespace {

constexpr char kMagic[] = "File BackUp Setting DATA for MIRRELL HOME:   ";
constexpr int kMagicSize = sizeof kMagic - 1;
static_assert(kMagicSize == 45);
static_assert(kMagicSize + 4 + sizeof BackUp.destDir + sizeof BackUp.destPath + sizeof BackUp.sourcePath +
                  sizeof BackUp.comment ==
              kBackUpFileSize);

// Bytes of a path that are kept and compared.
constexpr int kPathBytes = 512;
// Bytes of each half of a copy's path.
constexpr int kPartBytes = 256;
// Bytes of a name in the lists of the comparisons.
constexpr int kNameBytes = 24;

// True if the path begins with the row.
// kept: a row counts as equal though the path goes on behind it, so that "a.txt" in the
// list refuses "a.txt.bak".
bool RowRefuses(const char* row, const char* path) {
  const std::size_t length = TextLength(row, kPathBytes);
  return std::strncmp(row, path, length) == 0;
}

// bounded: the fields of a foreign settings file may lack their terminators.
void Terminate() {
  for (int row = 0; row < BackUp.fileCount; ++row) {
    BackUp.sourcePath[row][kBackUpPathSize - 1] = '\0';
    BackUp.destPath[row][kBackUpPathSize - 1] = '\0';
  }
  BackUp.destDir[sizeof BackUp.destDir - 1] = '\0';
  BackUp.comment[sizeof BackUp.comment - 1] = '\0';
}

// Reads into the tables as they come. False at a short read, at another magic
// and at a count that the tables cannot hold.
bool ReadFields(DataFile& data) {
  char magic[kMagicSize];
  std::int32_t count = 0;
  if (!DataRead(data, magic, kMagicSize) || std::memcmp(magic, kMagic, kMagicSize) != 0) return false;
  if (!DataReadBE32(data, count) || count < 0 || count > kBackUpMax) return false;
  BackUp.fileCount = count;
  DataRead(data, BackUp.destDir, sizeof BackUp.destDir);
  DataRead(data, BackUp.destPath, sizeof BackUp.destPath);
  DataRead(data, BackUp.sourcePath, sizeof BackUp.sourcePath);
  return DataRead(data, BackUp.comment, sizeof BackUp.comment);
}

// Last-write time of a file; false if it cannot be opened.
bool WriteTime(const char* path, std::uint64_t* time) {
  const int file = FileOpen(path, OpenMode::ReadDenyWrite);
  if (file == kNoFile) return false;
  if (!FileWriteTime(file, time)) *time = 0;
  FileClose(file);
  return true;
}

// Both files are at their beginnings. Lengths need not be known beforehand: the
// reads say them.
bool SameContent(int source, int copy) {
  constexpr int kBlock = 65536;
  unsigned char left[kBlock];
  unsigned char right[kBlock];
  for (;;) {
    const int leftSize = FileRead(source, left, kBlock);
    const int rightSize = FileRead(copy, right, kBlock);
    if (leftSize != rightSize) return false;
    if (leftSize > 0 && std::memcmp(left, right, static_cast<std::size_t>(leftSize)) != 0) return false;
    if (leftSize != kBlock) return true;
  }
}

void TimeText(bool there, std::uint64_t time, char* text, int size) {
  LocalTime local{};
  if (!there || !TimeFromFileTime(time, &local)) {
    TextCopy(text, static_cast<std::size_t>(size), " ****** ");
    return;
  }
  TextFormat(text, static_cast<std::size_t>(size), "%d/%d/%d %d:%d:%d", local.year, local.month, local.day,
             local.hour, local.minute, local.second);
}

// Writes a row of a comparison's list; true if the two times are there and equal.
bool ComparisonRow(int row, char* text, int size) {
  std::uint64_t sourceTime = 0;
  std::uint64_t copyTime = 0;
  const bool source = WriteTime(BackUp.sourcePath[row], &sourceTime);
  const bool copy = WriteTime(BackUp.destPath[row], &copyTime);
  char sourceText[64];
  char copyText[64];
  TimeText(source, sourceTime, sourceText, sizeof sourceText);
  TimeText(copy, copyTime, copyText, sizeof copyText);
  PathSplit(BackUp.sourcePath[row]);
  PathParts.PathName[TextPrefix(PathParts.PathName, kNameBytes)] = '\0';
  TextFormat(text, static_cast<std::size_t>(size), "%s (%s - %s)", PathParts.PathName, sourceText, copyText);
  return source && copy && sourceTime == copyTime;
}

}  // namespace

bool BackUpIsFull() {
  return BackUp.fileCount >= kBackUpMax;
}

int BackUpAddSource(const char* path) {
  if (BackUpIsFull()) return -1;
  for (int row = 0; row < BackUp.fileCount; ++row) {
    if (RowRefuses(BackUp.sourcePath[row], path)) return 1;
  }
  char* field = BackUp.sourcePath[BackUp.fileCount];
  std::memset(field, 0, kBackUpPathSize);
  std::memcpy(field, path, TextLength(path, kPathBytes));
  std::memset(BackUp.destPath[BackUp.fileCount], 0, kBackUpPathSize);
  ++BackUp.fileCount;
  BackUp.dirty = true;
  BackUpRebuildDest();
  return 0;
}

void BackUpRemoveSource(int row) {
  if (row < 0 || row >= BackUp.fileCount) return;
  const int last = --BackUp.fileCount;
  for (auto* table : {BackUp.sourcePath, BackUp.destPath}) {
    std::memmove(table[row], table[row + 1], static_cast<std::size_t>(last - row) * kBackUpPathSize);
    std::memset(table[last], 0, kBackUpPathSize);
  }
  BackUp.dirty = true;
}

void BackUpClearSources() {
  std::memset(BackUp.sourcePath, 0, sizeof BackUp.sourcePath);
  std::memset(BackUp.destPath, 0, sizeof BackUp.destPath);
  BackUp.fileCount = 0;
  BackUp.dirty = true;
}

void BackUpRebuildDest() {
  if (BackUp.fileCount == 0 || BackUp.destDir[0] == '\0') return;
  for (int row = 0; row < BackUp.fileCount; ++row) {
    PathSplit(BackUp.sourcePath[row]);
    std::memset(BackUp.destPath[row], 0, kBackUpPathSize);
    TextFormat(BackUp.destPath[row], kBackUpPathSize, "%.*s\\%.*s", kPartBytes, BackUp.destDir, kPartBytes,
               PathParts.PathName);
  }
  BackUp.dirty = true;
}

int BackUpLoad(const char* path) {
  FileResult.FileStatus = 0;
  DataFile data;
  if (!DataOpenRead(data, path, OpenMode::ReadDenyWrite)) return FileResult.FileStatus;
  if (!ReadFields(data)) FileResult.FileStatus = -2;
  DataClose(data);
  Terminate();
  if (FileResult.FileStatus == 0) BackUp.dirty = false;
  return FileResult.FileStatus;
}

int BackUpSave(const char* path) {
  FileResult.FileStatus = 0;
  DataFile data;
  if (!DataReplace(data, path)) return FileResult.FileStatus;
  DataWrite(data, kMagic, kMagicSize);
  DataWriteBE32(data, static_cast<std::uint32_t>(BackUp.fileCount));
  DataWrite(data, BackUp.destDir, sizeof BackUp.destDir);
  DataWrite(data, BackUp.destPath, sizeof BackUp.destPath);
  DataWrite(data, BackUp.sourcePath, sizeof BackUp.sourcePath);
  if (!DataWrite(data, BackUp.comment, sizeof BackUp.comment)) FileResult.FileStatus = -2;
  DataClose(data);
  return FileResult.FileStatus;
}

int BackUpStep() {
  if (BackUp.fileCursor < BackUp.fileCount) {
    if (FileCopy(BackUp.sourcePath[BackUp.fileCursor], BackUp.destPath[BackUp.fileCursor], false)) {
      ++BackUp.fileCursor;
      return 0;
    }
    BackUpRun.BackUpActive = false;
    return -1;
  }
  BackUpRun.BackUpActive = false;
  return 1;
}

int BackUpCompareDate() {
  for (int row = 0; row < BackUp.fileCount; ++row) {
    std::uint64_t source = 0;
    std::uint64_t copy = 0;
    if (!WriteTime(BackUp.sourcePath[row], &source)) return -1;
    if (!WriteTime(BackUp.destPath[row], &copy)) return 1;
    if (source != copy) return 1;
  }
  return 0;
}

int BackUpCompareContent() {
  int result = 0;
  for (int row = 0; row < BackUp.fileCount; ++row) {
    const int source = FileOpen(BackUp.sourcePath[row], OpenMode::ReadDenyWrite);
    if (source == kNoFile) return -1;
    const int copy = FileOpen(BackUp.destPath[row], OpenMode::ReadDenyWrite);
    if (copy == kNoFile) {
      FileClose(source);
      return -2;
    }
    BackUp.differs[row] = SameContent(source, copy) ? 0 : -3;
    if (BackUp.differs[row] != 0) result = -3;
    FileClose(source);
    FileClose(copy);
  }
  return result;
}

bool BackUpListDate(int row, char* text, int size) {
  return !ComparisonRow(row, text, size);
}

bool BackUpListContent(int row, char* text, int size) {
  ComparisonRow(row, text, size);
  return BackUp.differs[row] != 0;
}
