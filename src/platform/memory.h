// Memory blocks that live at one address until they are freed.
#pragma once

#include <cstddef>

// A zero-filled block. Null when the memory is not to be had.
void* MemoryAllocate(std::size_t size);

// Frees a block; null is accepted.
void MemoryFree(void* block);

// The size a block was asked with; 0 for null.
std::size_t MemorySize(const void* block);
