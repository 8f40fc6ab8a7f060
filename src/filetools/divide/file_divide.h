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

#include "filetools/divide/divide_state.h"

// Size of a file, low 32 bits; 0 if it cannot be opened.
std::uint32_t DivFileSize(const char* path);

// True if the chosen source is of 2 GiB or more, as it was picked or as it is now; such a
// source is not divided.
bool DivSourceTooLarge();

// Bytes in the piece of that 0-based index.
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
