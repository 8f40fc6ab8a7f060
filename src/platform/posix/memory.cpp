#include "platform/memory.h"

#include <cstdlib>

#include "platform/posix/faults.h"
#include "platform/posix/live_counts.h"

// The size stands in front of the block; the block itself comes straight from
// the allocator, so that the sanitizer sees its end.
namespace {
constexpr std::size_t kHead = 16;
}

void* MemoryAllocate(std::size_t size) {
  if (FaultMeets(FaultKind::Memory)) return nullptr;
  auto* raw = static_cast<unsigned char*>(std::calloc(1, size + kHead));
  if (!raw) return nullptr;
  *reinterpret_cast<std::size_t*>(raw) = size;
  ++PosixLive().blocks;
  return raw + kHead;
}

void MemoryFree(void* block) {
  if (!block) return;
  std::free(static_cast<unsigned char*>(block) - kHead);
  --PosixLive().blocks;
}

std::size_t MemorySize(const void* block) {
  if (!block) return 0;
  return *reinterpret_cast<const std::size_t*>(static_cast<const unsigned char*>(block) - kHead);
}
