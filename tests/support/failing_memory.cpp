// SPDX-License-Identifier: MIT
#include "tests/support/failing_memory.h"

#include <openssl/crypto.h>

#include <cstdlib>
#include <new>

#include "tests/support/heap_probe.h"

namespace {

thread_local bool gArmed = false;
thread_local bool gFromThenOn = false;
thread_local long gLeft = 0;  // until the one that fails; below 0 once it was asked for
thread_local long gBlocks = 0;

#ifdef TOVI_FAILS_MEMORY
bool strikes() noexcept {
  if (!gArmed) return false;
  --gLeft;
  return gLeft == 0 || (gLeft < 0 && gFromThenOn);
}

void* take(std::size_t size) noexcept {
  if (strikes()) return nullptr;
  void* block = std::malloc(size == 0 ? 1 : size);
  if (block != nullptr) ++gBlocks;
  return block;
}

void giveBack(void* block) noexcept {
  if (block != nullptr) --gBlocks;
  std::free(block);
}

void* takeOrThrow(std::size_t size) {
  if (void* block = take(size)) return block;
  throw std::bad_alloc();
}

// libcrypto's memory fails as well, but what it keeps is its own affair. It must be told before it
// takes any.
void* cryptoTake(std::size_t size, const char*, int) {
  return size == 0 || strikes() ? nullptr : std::malloc(size);
}
void* cryptoResize(void* block, std::size_t size, const char*, int) {
  return strikes() ? nullptr : std::realloc(block, size);
}
void cryptoRelease(void* block, const char*, int) { std::free(block); }
const int gCryptoIsTold = CRYPTO_set_mem_functions(cryptoTake, cryptoResize, cryptoRelease);
#endif

}  // namespace

namespace tovi::test {

FailingMemory::FailingMemory(long n, bool fromThenOn) {
  gLeft = n;
  gFromThenOn = fromThenOn;
  gArmed = true;
}

FailingMemory::~FailingMemory() { gArmed = false; }

bool FailingMemory::struck() { return gLeft <= 0; }

OwnMemory::OwnMemory() : mWasArmed(gArmed) { gArmed = false; }
OwnMemory::~OwnMemory() { gArmed = mWasArmed; }

long heapBlocksOfThisThread() { return gBlocks; }

}  // namespace tovi::test

#ifdef TOVI_FAILS_MEMORY
void* operator new(std::size_t size) { return takeOrThrow(size); }
void* operator new[](std::size_t size) { return takeOrThrow(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return take(size); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return take(size); }
void operator delete(void* block) noexcept { giveBack(block); }
void operator delete[](void* block) noexcept { giveBack(block); }
void operator delete(void* block, std::size_t) noexcept { giveBack(block); }
void operator delete[](void* block, std::size_t) noexcept { giveBack(block); }
#endif
