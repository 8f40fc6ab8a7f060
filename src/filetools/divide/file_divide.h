// Dividing a file into pieces, and joining them again.
//
// A division leaves one joining file, <storeDir>\<baseName>0.cof, and its piece
// files, <storeDir>\<baseName><n>.div. The joining file:
//
//   offset  size   content
//        0     1   encryptFlag, never scrambled
//        1   100   keyBlock, never scrambled
//      101   308   head record (cof_record.h)
//      409   308   each: one piece record per piece, in order
//
// Numbers are big-endian. There is no magic and no checksum. A piece file holds
// bytes of the source and nothing else.
#pragma once

#include <cstdint>

#include "platform/file.h"

inline constexpr int kDivKeywordMin = 4;
inline constexpr int kDivKeywordMax = 8;
inline constexpr int kDivKeyBlockSize = 100;
inline constexpr int kDivTableSize = 160;
inline constexpr int kDivNumberCount = 100;  // piece numbers that are shuffled
inline constexpr int kDivCountMax = 200;

struct FileDivideState {
  char sourcePath[600];      // the file to divide, or the joining file of a restore
  std::uint32_t sourceSize;  // taken when the file was picked, and not again
  std::int32_t divideCount;  // as typed
  std::uint8_t encryptFlag;  // 0 or 1; a restore leaves the joining file's byte here
  char keyword[kDivKeywordMax + 1];
  std::int32_t keywordLength;  // 0: none set
  char storeDir[300];          // takes the pieces, or the rebuilt file
  char baseName[300];          // of the pieces; in a restore the path of the piece being read
  char cofDir[300];            // folder of the joining file, with its trailing backslash
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
};
extern FileDivideState FileDivide;

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

// Size of a file, low 32 bits; 0 if it cannot be opened.
std::uint32_t DivFileSize(const char* path);

// Bytes in the piece of that 0-based index. Negative for a source of 2 GiB and
// more, see there.
std::int32_t DivPieceSize(std::int32_t index);

// The number in the name of the piece of that ordinal (from 1).
std::int32_t DivNextPieceNumber(std::int32_t ordinal);

// First byte of a joining file. 0 with FileStatus -1 if it cannot be opened, 0
// with -2 if it is empty.
std::uint8_t CofReadFlag(const char* path);

// Do what stepCounter says: 1 the start, n from 2 on the piece of index n - 2,
// past the last piece the end (stepCounter becomes 0). Return 0 if the run may
// go on, non-zero, which is also in FileStatus, if it failed.
int FileDivideStep();
int FileRestoreStep(const char* cofPath);

// Stops a run where it is: closes the joining file and the source or target and
// sets stepCounter to 0. What has been made stays.
void FileDivideStop();
