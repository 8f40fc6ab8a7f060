// The first data format of the program: one block of bytes, kept as it came. No
// feature of today reads what is in it; who still has such a file can load it and
// save it again, by the commands 5, 6 and 9 that nothing sends.
//
// settled: the first data format is loaded and saved as one block of at most 65,536 bytes,
// as it is; a cancelled file dialog leaves 1 in the result of file operations, a file too
// large 2, no memory 3.
#pragma once

#include <cstdint>

inline constexpr int kOldDataMax = 65536;

struct OldDataPath {
  char text[600];
};

struct OldFormatState {
  unsigned char* OldData = nullptr;  // the block; null until one is loaded
  std::int32_t OldDataSize = 0;      // its bytes, 0 to kOldDataMax
  OldDataPath path = {};             // where the block came from or went to last
};
extern OldFormatState OldFormat;

// Load asks for a file; Save writes the block under the name it has, SaveAs asks
// for one. With no block there is nothing to save. What went wrong is told in a box
// and left in FileStatus: 0 done, -1 the file does not open, -2 short transfer,
// 1 no file was picked, 2 the file is too large, 3 no memory. The block in memory
// stays as it is unless another was read whole.
void OldDataLoad();
void OldDataSave();
void OldDataSaveAs();

void OldDataFree();
