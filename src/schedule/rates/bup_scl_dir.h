// BupSclDir.bsd of the program folder.
//
// kept: the two folders of BupSclDir.bsd are used by nothing.
#pragma once

#include "services/record.h"

inline constexpr int kBupSclDirSize = 300;

// The file, 600 bytes, with no magic
//
// offset  size     content
//      0  2 x 300  paths
struct BupSclDir {
  char paths[2][kBupSclDirSize + 1];
};

template <class Io>
constexpr void Fields(Io& io, BupSclDir& dirs) {
  io.Text(dirs.paths, kBupSclDirSize);
}
static_assert(RecordSize<BupSclDir>() == 600);

// Replaces the file. 0; -1 it cannot be made, -2 a short write.
int BupSclDirWrite(const BupSclDir& dirs);
// 0; -3 it cannot be opened, -2 it is short: what was read by then stays.
int BupSclDirRead(BupSclDir& dirs);
