// The two work blocks, for the process's life.
#pragma once

inline constexpr int kCastBlockSize = 1300000;   // scenario cast records; order tables of the folder scope
inline constexpr int kScopeBlockSize = 4700000;  // folder statistics, second table at 2,000,000

struct WorkBlocksState {
  unsigned char* CastBlock = nullptr;
  unsigned char* ScopeBlock = nullptr;
  unsigned scopeWrites = 0;  // of the folder scope, into either: who else uses them sees that it was there
};
extern WorkBlocksState WorkBlocks;

void WorkBlocksAllocate();
// The folder scope tells that it has written into one.
void ScopeWroteBlocks();
void ScopeBlockFree();
void CastBlockFree();
