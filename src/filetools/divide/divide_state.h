// What dividing and restoring know: FileDivide, written by the files of this folder.
#pragma once

#include <cstdint>

#include "platform/file.h"

inline constexpr int kDivKeywordMin = 4;
inline constexpr int kDivKeywordMax = 8;
inline constexpr int kDivKeyBlockSize = 100;
inline constexpr int kDivTableSize = 160;
inline constexpr int kDivNumberCount = 100;  // piece numbers that are shuffled
inline constexpr int kDivCountMax = 200;

// settled: pieces go by blocks of 5,000 bytes as far as anyone can tell from a run that
// failed, and for speed by many of them at once, which are whole pages of memory.
inline constexpr std::int32_t kDivBlock = 5000;
inline constexpr std::int32_t kDivTransfer = 512 * kDivBlock;

struct FileDivideState {
  char sourcePath[600];  // the file to divide, or the joining file of a restore
  // kept: the size of the file to divide is taken when it is picked, and not again when the
  // run begins.
  std::uint32_t sourceSize;
  std::int32_t divideCount;  // as typed
  // kept: a restore leaves the first byte of its joining file in the check box of the divide
  // dialog.
  std::uint8_t encryptFlag;
  char keyword[kDivKeywordMax + 1];
  std::int32_t keywordLength;  // 0: none set
  // kept: a division and a restore share the folder that takes the pieces, or the rebuilt file.
  char storeDir[300];
  char baseName[300];  // of the pieces; in a restore the path of the piece being read
  char cofDir[300];    // folder of the joining file, with its trailing backslash
  std::int32_t pieceTotal;
  std::uint32_t pieceSize;  // nominal
  std::int32_t bodyKeyPos;
  std::int32_t bodyTableCursor;
  std::int32_t recordTableCursor;
  std::uint8_t numberUsed[kDivNumberCount];
  std::uint8_t keyBlock[kDivKeyBlockSize];
  std::uint8_t scrambleTable[kDivTableSize];
  int cofFile = kNoFile;
  int sourceFile = kNoFile;  // the source; in a restore the target
  int pieceFile = kNoFile;
  bool banner;  // the dialog says that work is being started
  bool busy;    // a command of the two dialogs is running
};
extern FileDivideState FileDivide;

// What is on its way from one file to another.
struct DivideTransferState {
  std::uint8_t bytes[kDivTransfer] = {};
};
extern DivideTransferState DivideTransfer;

// Closes the files of a run, if there are any, and sets their handles to kNoFile.
void DivideFilesClose();

// Makes all of this what it is in a fresh process.
void FileDivideReset();

// Values of FileStatus beside 0.
enum : int {
  kDivCannotOpen = -1,      // source or joining file; a piece in a restore
  kDivHeadShort = -2,       // flag byte or key block of the joining file
  kDivSourceShort = 2,      // the source ended early
  kDivPieceShort = -10,     // short write to a piece
  kDivTransferShort = -11,  // joining file; a piece or the target in a restore
  kDivCofNotMade = -100,
  kDivNotCreated = -101,   // a piece or the target
  kDivNotReopened = -102,  // the same, after its creation
};
