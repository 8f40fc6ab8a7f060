// The two work blocks, for the process's life.
#pragma once

inline constexpr int kCastBlockSize = 1300000;   // scenario cast records; order tables of the folder scope
inline constexpr int kScopeBlockSize = 4700000;  // folder statistics, second table at 2,000,000

struct WorkBlocksState {
  unsigned char* CastBlock = nullptr;
  unsigned char* ScopeBlock = nullptr;
};
extern WorkBlocksState WorkBlocks;

void WorkBlocksAllocate();
void ScopeBlockFree();
void CastBlockFree();
