#include "filetools/divide/file_divide.h"

#include <algorithm>
#include <cstring>

#include "filetools/divide/cof_record.h"
#include "filetools/divide/div_key_block.h"
#include "filetools/divide/div_scramble.h"
#include "filetools/stepped_work.h"
#include "services/data_file.h"
#include "services/path.h"
#include "services/record_file.h"
#include "services/text.h"

namespace {

// Sizes count as signed numbers.
constexpr std::uint32_t kSizeMax = 0x7FFFFFFF;

// Room for <storeDir>\<baseName><number>.<extension>, both full.
constexpr int kPathSize = 640;

int Fail(int status) {
  FileResult.FileStatus = status;
  return status;
}

void CloseFile(int& file) {
  FileClose(file);
  file = kNoFile;
}

int FailClosed(int status) {
  DivideFilesClose();
  return Fail(status);
}

// Replaces a file and leaves it open in `file`. Returns 0, or which of the two
// went wrong; FileStatus is the caller's to set.
// kept: a piece, a joining file or a joined file that is there already is replaced without a
// question; one that cannot be deleted shows at its creation.
int MakeFile(const char* path, int& file, int notCreated, int notReopened) {
  DataFile data;
  if (DataReplace(data, path)) {
    file = data.file;
    return 0;
  }
  return data.created ? notReopened : notCreated;
}

// What both kinds of run begin with.
void BeginRun() {
  FileResult.FileStatus = 0;
  // A run that ended by a short source, or whose dialog was closed by OK, has
  // left files open until now.
  DivideFilesClose();
  FileDivide.bodyTableCursor = 0;
  FileDivide.recordTableCursor = 0;
  std::memset(FileDivide.numberUsed, 0, sizeof FileDivide.numberUsed);
}

int EndRun() {
  CloseFile(FileDivide.cofFile);
  CloseFile(FileDivide.sourceFile);
  SteppedNext(0);
  return 0;
}

enum class Copied { All, ShortRead, ShortWrite };

// Moves a piece's bytes. When the source ends early, the whole blocks that did
// arrive have been written.
// settled: a negative size is that of a source too large to be divided, and counts as a
// source that ends early: its joined file would be empty.
Copied CopyBody(int from, int to, std::int32_t size, DivCipher cipher) {
  std::uint8_t* buffer = DivideTransfer.bytes;
  FileDivide.bodyKeyPos = 0;
  if (size < 0) return Copied::ShortRead;
  for (std::int32_t left = size; left > 0;) {
    const std::int32_t want = std::min(left, kDivTransfer);
    const std::int32_t got = FileRead(from, buffer, want);
    const std::int32_t whole = got == want ? want : std::max(got, 0) / kDivBlock * kDivBlock;
    FileDivide.bodyKeyPos = cipher(FileDivide.bodyKeyPos, whole, buffer, buffer, FileDivide.bodyTableCursor);
    if (whole > 0 && FileWrite(to, buffer, whole) != whole) return Copied::ShortWrite;
    if (got != want) return Copied::ShortRead;
    left -= want;
  }
  return Copied::All;
}

int DivideStart() {
  BeginRun();
  // kept: a number of pieces below 1 makes two, and 1 makes a single one.
  FileDivide.pieceTotal = FileDivide.divideCount < 1 ? 2 : FileDivide.divideCount;
  FileDivide.pieceSize = FileDivide.sourceSize / static_cast<std::uint32_t>(FileDivide.pieceTotal);
  FileDivide.sourceFile = FileOpen(FileDivide.sourcePath, OpenMode::ReadDenyWrite);
  if (FileDivide.sourceFile == kNoFile) return Fail(kDivCannotOpen);
  char path[kPathSize];
  TextFormat(path, sizeof path, "%s\\%s%d.cof", FileDivide.storeDir, FileDivide.baseName, 0);
  if (MakeFile(path, FileDivide.cofFile, kDivCofNotMade, kDivCofNotMade) != 0)
    return FailClosed(kDivCofNotMade);
  DivBuildKeyBlock();
  DataFile cof{FileDivide.cofFile};
  if (!RecordWrite(cof, FileDivide) ||
      !DivWriteRecord(FileDivide.cofFile, 0, FileDivide.pieceTotal, FileDivide.sourcePath)) {
    return FailClosed(kDivTransferShort);
  }
  SteppedNext(2);
  return 0;
}

int DividePiece(std::int32_t index) {
  FileResult.FileStatus = 0;
  if (index >= FileDivide.pieceTotal) return EndRun();
  // kept: only an encryption flag of exactly 1 shuffles the numbers of the pieces; another
  // value, left by a foreign joining file, scrambles their bytes all the same.
  const std::int32_t number = FileDivide.encryptFlag == 1 ? DivNextPieceNumber(index + 1) : index + 1;
  char path[kPathSize];
  TextFormat(path, sizeof path, "%s\\%s%d.div", FileDivide.storeDir, FileDivide.baseName, number);
  const int made = MakeFile(path, FileDivide.pieceFile, kDivNotCreated, kDivNotReopened);
  if (made != 0) return FailClosed(made);
  const std::int32_t size = DivPieceSize(index);
  switch (CopyBody(FileDivide.sourceFile, FileDivide.pieceFile, size, DivScramble)) {
    case Copied::ShortRead:
      // kept: a source that ends before its pieces are full leaves the joining file and the
      // piece open until the next run.
      CloseFile(FileDivide.sourceFile);
      return Fail(kDivSourceShort);
    case Copied::ShortWrite:
      return FailClosed(kDivPieceShort);
    case Copied::All:
      break;
  }
  if (!DivWriteRecord(FileDivide.cofFile, index + 1, size, path)) return FailClosed(kDivTransferShort);
  CloseFile(FileDivide.pieceFile);
  SteppedNext(Stepped.stepCounter + 1);
  return 0;
}

int RestoreStart(const char* cofPath) {
  BeginRun();
  PathSplit(cofPath);
  TextCopy(FileDivide.cofDir, sizeof FileDivide.cofDir, PathParts.PathFolder);
  FileDivide.cofFile = FileOpen(cofPath, OpenMode::ReadDenyWrite);
  if (FileDivide.cofFile == kNoFile) return Fail(kDivCannotOpen);
  DataFile cof{FileDivide.cofFile};
  if (!RecordRead(cof, FileDivide)) return FailClosed(kDivHeadShort);
  DivLoadKeyBlock();
  CofRecord head;
  if (!DivReadRecord(FileDivide.cofFile, head)) return FailClosed(kDivTransferShort);
  FileDivide.pieceTotal = head.value;
  // settled: a joining file may come from anywhere; its names reach no other folder and no
  // device, and one that would counts as a file that cannot be made or opened.
  if (!PathIsBareName(head.name)) return FailClosed(kDivNotCreated);
  char path[kPathSize];
  TextFormat(path, sizeof path, "%s\\%s", FileDivide.storeDir, head.name);
  const int made = MakeFile(path, FileDivide.sourceFile, kDivNotCreated, kDivNotReopened);
  if (made != 0) return FailClosed(made);
  SteppedNext(2);
  return 0;
}

int RestorePiece(std::int32_t index) {
  FileResult.FileStatus = 0;
  if (index >= FileDivide.pieceTotal) return EndRun();
  CofRecord piece;
  if (!DivReadRecord(FileDivide.cofFile, piece)) return FailClosed(kDivTransferShort);
  // kept: the folder of the joining file ends in a backslash already and gets another one,
  // and the path of the piece takes the place of the base name in the divide dialog.
  TextFormat(FileDivide.baseName, sizeof FileDivide.baseName, "%s\\%s", FileDivide.cofDir, piece.name);
  if (!PathIsBareName(piece.name)) return FailClosed(kDivCannotOpen);
  FileDivide.pieceFile = FileOpen(FileDivide.baseName, OpenMode::ReadDenyWrite);
  if (FileDivide.pieceFile == kNoFile) return FailClosed(kDivCannotOpen);
  // kept: a piece that is longer than its record says is cut off in silence.
  const Copied copied = CopyBody(FileDivide.pieceFile, FileDivide.sourceFile, piece.value, DivUnscramble);
  if (copied != Copied::All) return FailClosed(kDivTransferShort);
  CloseFile(FileDivide.pieceFile);
  SteppedNext(Stepped.stepCounter + 1);
  return 0;
}

}  // namespace

std::uint32_t DivFileSize(const char* path) {
  const int file = FileOpen(path, OpenMode::ReadDenyWrite);
  const std::uint32_t size = FileSize(file, nullptr);
  FileClose(file);
  return size;
}

bool DivSourceTooLarge() {
  const int file = FileOpen(FileDivide.sourcePath, OpenMode::ReadDenyWrite);
  std::uint32_t high = 0;
  const std::uint32_t low = FileSize(file, &high);
  FileClose(file);
  return high != 0 || low > kSizeMax || FileDivide.sourceSize > kSizeMax;
}

std::int32_t DivPieceSize(std::int32_t index) {
  // The sizes are compared as signed numbers.
  const auto total = static_cast<std::int32_t>(FileDivide.sourceSize);
  const auto nominal = static_cast<std::int32_t>(FileDivide.pieceSize);
  // kept: a source smaller than a piece gives its own size, though the size of a piece is the
  // source's divided by their number.
  if (total < nominal) return total;
  const auto rest = static_cast<std::int32_t>(FileDivide.sourceSize -
                                              static_cast<std::uint32_t>(index) * FileDivide.pieceSize);
  if (rest < nominal || index + 1 == FileDivide.pieceTotal) return rest;
  return nominal;
}

std::int32_t DivNextPieceNumber(std::int32_t ordinal) {
  if (ordinal > kDivNumberCount) return ordinal;
  constexpr int kDraws = 10000;
  for (int draw = 0; draw < kDraws; ++draw) {
    const std::int32_t r = DivRandom(kDivNumberCount);
    if (FileDivide.numberUsed[r]) continue;
    FileDivide.numberUsed[r] = 1;
    return r + 1;
  }
  for (std::int32_t r = 0; r < kDivNumberCount; ++r) {
    if (FileDivide.numberUsed[r]) continue;
    FileDivide.numberUsed[r] = 1;
    return r + 1;
  }
  return ordinal;
}

std::uint8_t CofReadFlag(const char* path) {
  FileResult.FileStatus = 0;
  const int file = FileOpen(path, OpenMode::ReadDenyWrite);
  std::uint8_t flag = 0;
  if (file == kNoFile) {
    FileResult.FileStatus = kDivCannotOpen;
  } else if (FileRead(file, &flag, 1) != 1) {
    FileResult.FileStatus = kDivHeadShort;
    flag = 0;
  }
  FileClose(file);
  return flag;
}

int FileDivideStep() {
  if (Stepped.stepCounter < 1) return 0;
  return Stepped.stepCounter == 1 ? DivideStart() : DividePiece(Stepped.stepCounter - 2);
}

int FileRestoreStep(const char* cofPath) {
  if (Stepped.stepCounter < 1) return 0;
  return Stepped.stepCounter == 1 ? RestoreStart(cofPath) : RestorePiece(Stepped.stepCounter - 2);
}

void FileDivideStop() {
  EndRun();
}
