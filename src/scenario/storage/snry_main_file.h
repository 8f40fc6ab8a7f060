// The main file of a scenario: シナリオメイン.cff, always 2371558 bytes.
//
//  offset           size  content
//       0            474  SnryMainFile
//     474      30 x  496  folders
//   15354      30 x    2  sceneCounts
//   15414 30 x 50 x  982  scenes
// 1488414              2  registeredCount
// 1488416     512 x  480  charMotions
// 1734176              2  paraCount
// 1734178    2048 x  270  paras
// 2287138              2  charaCount
// 2287140     512 x    2  charaOrders
// 2288164            512  registered
// 2288676     512 x   64  charaNames
// 2321444     512 x   64  castNames
// 2354212            512  charaKept
// 2354724              2  motionCount
// 2354726     256 x   64  motionNames
// 2371110      10 x   32  labels
// 2371430            128  options
#pragma once

#include "scenario/storage/scenario.h"

inline constexpr int kSnryMainSize = 2371558;

// offset  size  field
//      0    43  magic, no terminator
//     43   300  folder, the main folder as it was when the file was saved
//    343   129  title
//    472     2  folderCount
struct SnryMainFile {
  char magic[43];
  char folder[kSnryPathSize + 1];
  char title[kSnryTitleSize];
  std::uint16_t folderCount;
};

template <class Io>
constexpr void Fields(Io& io, SnryMainFile& head) {
  io.Bytes(head.magic);
  io.Text(head.folder, kSnryPathSize);
  io.Text(head.title);
  io.BE16(head.folderCount);
}
static_assert(RecordSize<SnryMainFile>() == 474);

// The main file open status: 0 it is there, -1 the main folder cannot be entered, -2 no
// such file, -3 another file. The main folder is the current one behind 0, -2 and -3.
int SnryMainStatus();

// Reads the file into the tables, and lets go of the pictures of the characters. 0; -1 it
// cannot be opened, -3 it is short, -4 it is another file. What was read by then stays.
int SnryMainRead();

// The whole save: what is there goes, the file is made, written, read back and written
// again. 0; -1 a file is still there or none can be made, -3 a short transfer, -4 what was
// read back is another file.
int SnrySaveMain();
