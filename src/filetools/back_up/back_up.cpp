#include "filetools/back_up/back_up.h"

#include <algorithm>
#include <cstring>

#include "platform/time.h"
#include "services/data_file.h"
#include "services/path.h"
#include "services/record_file.h"
#include "services/state.h"
#include "services/text.h"

BackUpRunState BackUpRun;

BackUpSet BackUp;

namespace {

constexpr char kMagic[] = "File BackUp Setting DATA for MIRRELL HOME:   ";
static_assert(sizeof kMagic - 1 == sizeof BackUpHead::magic);

// Bytes of a path that are kept and compared.
constexpr int kPathBytes = 512;
// Bytes of each half of a copy's path.
constexpr int kPartBytes = 256;
// Bytes of a name in the lists of the comparisons.
constexpr int kNameBytes = 24;

// True if the path begins with the row.
// kept: in the back-up list a source refuses every new path that begins with it, without a
// word: "a.txt" refuses "a.txt.bak" in its folder.
bool RowRefuses(const char* row, const char* path) {
  const std::size_t length = TextLength(row, kPathBytes);
  return std::strncmp(row, path, length) == 0;
}

// Reads into the tables as they come. False at a short read, at another magic
// and at a count that the tables cannot hold.
// kept: back-up settings that are cut short leave in the list what came before the cut.
// settled: a count of sources that the table cannot hold makes the settings bad content,
// and the list stays as it was.
bool ReadFields(DataFile& data) {
  BackUpHead head;
  if (!RecordRead(data, head) || std::memcmp(head.magic, kMagic, sizeof head.magic) != 0) return false;
  if (head.fileCount < 0 || head.fileCount > kBackUpMax) return false;
  BackUp.fileCount = head.fileCount;
  return RecordRead(data, BackUp);
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
// settled: files are compared in blocks of 65,536 bytes, which find what blocks of 10,000
// bytes find.
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
  const auto length = static_cast<int>(TextPrefix(PathParts.PathName, kNameBytes));
  TextFormat(text, static_cast<std::size_t>(size), "%.*s (%s - %s)", length, PathParts.PathName, sourceText,
             copyText);
  return source && copy && sourceTime == copyTime;
}

}  // namespace

void BackUpReset() {
  StateReset(BackUp);
  StateReset(BackUpRun);
}

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

// kept: two sources of the same name get the same copy; the later one overwrites the
// earlier one's, and nothing warns of it.
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
  if (FileResult.FileStatus == 0) BackUp.dirty = false;
  return FileResult.FileStatus;
}

int BackUpSave(const char* path) {
  FileResult.FileStatus = 0;
  DataFile data;
  if (!DataReplace(data, path)) return FileResult.FileStatus;
  BackUpHead head{{}, BackUp.fileCount};
  std::memcpy(head.magic, kMagic, sizeof head.magic);
  RecordWrite(data, head);
  if (!RecordWrite(data, BackUp)) FileResult.FileStatus = -2;
  DataClose(data);
  return FileResult.FileStatus;
}

// kept: a back-up copies every file every time; no date is looked at, and a copy that is
// there is overwritten.
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

// kept: a missing copy is a difference for the comparison by date and an error for the one
// by content.
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
