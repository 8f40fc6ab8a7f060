#include "platform/memory.h"

#include "platform/win32/border.h"

void* MemoryAllocate(std::size_t size) {
  // A fixed block: its address is its handle, so nothing has to be locked.
  void* block = GlobalAlloc(GPTR, size);
  if (block) ++Live().blocks;
  return block;
}

void MemoryFree(void* block) {
  if (!block) return;
  GlobalFree(block);
  --Live().blocks;
}

std::size_t MemorySize(const void* block) {
  return block ? GlobalSize(const_cast<void*>(block)) : 0;
}
