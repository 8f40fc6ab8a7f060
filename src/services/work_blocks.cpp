#include "services/work_blocks.h"

#include "platform/memory.h"

WorkBlocksState WorkBlocks;

namespace {

void BlockFree(unsigned char*& block) {
  MemoryFree(block);
  block = nullptr;
}

}  // namespace

void WorkBlocksAllocate() {
  WorkBlocks.CastBlock = static_cast<unsigned char*>(MemoryAllocate(kCastBlockSize));
  WorkBlocks.ScopeBlock = static_cast<unsigned char*>(MemoryAllocate(kScopeBlockSize));
}

void ScopeWroteBlocks() {
  ++WorkBlocks.scopeWrites;
}

void ScopeBlockFree() {
  BlockFree(WorkBlocks.ScopeBlock);
}

void CastBlockFree() {
  BlockFree(WorkBlocks.CastBlock);
}
