// SPDX-License-Identifier: MIT
#define OPENSSL_SUPPRESS_DEPRECATED

#include "cipher/des.h"

#include <openssl/des.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>
#include <string>

namespace tovi::cipher {
namespace {

constexpr std::size_t kBlockSize = 8;
constexpr std::size_t kMaxSize = std::numeric_limits<int>::max() - kBlockSize;

// One message's chain of blocks: its state carries over from one call to the next.
class Chain {
 public:
  Chain(std::string_view key, int direction) : mDirection(direction) {
    std::copy_n(key.data(), std::min(key.size(), kBlockSize), mVector);
    DES_set_key_unchecked(&mVector, &mSchedule);
  }

  // Takes whole blocks only.
  void run(const char* in, char* out, std::size_t size) {
    DES_ncbc_encrypt(reinterpret_cast<const unsigned char*>(in),
                     reinterpret_cast<unsigned char*>(out), static_cast<long>(size), &mSchedule,
                     &mVector, mDirection);
  }

 private:
  DES_cblock mVector{};
  DES_key_schedule mSchedule;
  int mDirection;
};

}  // namespace

int desEncrypt(std::string_view plain, std::string_view key, std::span<char> out) {
  const std::size_t pad = kBlockSize - plain.size() % kBlockSize;
  if (plain.size() > kMaxSize || out.size() < plain.size() + pad) return -1;
  const std::size_t total = plain.size() + pad;
  std::char_traits<char>::move(out.data(), plain.data(), plain.size());
  std::fill_n(out.data() + plain.size(), pad, static_cast<char>(pad));
  Chain(key, DES_ENCRYPT).run(out.data(), out.data(), total);
  return static_cast<int>(total);
}

int desDecrypt(std::string_view ciphered, std::string_view key, std::span<char> out) {
  const std::size_t size = ciphered.size();
  if (size > kMaxSize || out.size() < size) return -1;
  if (size == 0) return 0;
  const std::size_t tail = size % kBlockSize;
  const std::size_t whole = size - tail;
  Chain chain(key, DES_DECRYPT);
  chain.run(ciphered.data(), out.data(), whole);
  if (tail != 0) {
    std::array<char, kBlockSize> block{};
    std::copy_n(ciphered.data() + whole, tail, block.data());
    chain.run(block.data(), block.data(), block.size());
    std::copy_n(block.data(), tail, out.data() + whole);
  }
  return static_cast<int>(size) - static_cast<unsigned char>(out[size - 1]);
}

}  // namespace tovi::cipher
