// SPDX-License-Identifier: MIT
#include "tests/support/heap_probe.h"

#include <cstdlib>
#include <new>

#ifdef TOVI_COUNTS_HEAP

namespace {

thread_local long gBlocks = 0;

void* take(std::size_t size) {
  void* block = std::malloc(size == 0 ? 1 : size);
  if (block == nullptr) throw std::bad_alloc();
  ++gBlocks;
  return block;
}

void giveBack(void* block) {
  if (block == nullptr) return;
  --gBlocks;
  std::free(block);
}

}  // namespace

long tovi::test::heapBlocksOfThisThread() { return gBlocks; }

void* operator new(std::size_t size) { return take(size); }
void* operator new[](std::size_t size) { return take(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return take(size); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return take(size); }
void operator delete(void* block) noexcept { giveBack(block); }
void operator delete[](void* block) noexcept { giveBack(block); }
void operator delete(void* block, std::size_t) noexcept { giveBack(block); }
void operator delete[](void* block, std::size_t) noexcept { giveBack(block); }

#else

// The sanitizers count for themselves, and tell more.
long tovi::test::heapBlocksOfThisThread() { return 0; }

#endif
