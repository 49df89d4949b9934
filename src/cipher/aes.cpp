// SPDX-License-Identifier: MIT
#include "cipher/aes.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <limits>

#if defined(__x86_64__) || defined(__i386__)
#define TOVI_AES_INSTRUCTIONS 1
#include <immintrin.h>
#else
#define TOVI_AES_INSTRUCTIONS 0
#endif

namespace tovi::cipher {
namespace aes {
namespace {

using Byte = std::uint8_t;
using Block = std::array<Byte, 16>;
using Table = std::array<Byte, 256>;

constexpr std::size_t kBlockSize = 16;
constexpr std::size_t kRounds = 10;

constexpr Byte timesTwo(Byte value) { return Byte(value << 1 ^ (value & 0x80 ? 0x1b : 0)); }

// Walks the field's non-zero elements as powers of 3, next to the same powers of its inverse 0xf6.
constexpr Table makeSubstitution() {
  Table table{};
  Byte element = 1;
  Byte inverse = 1;
  do {
    element = Byte(element ^ timesTwo(element));
    inverse = Byte(inverse ^ inverse << 1);
    inverse = Byte(inverse ^ inverse << 2);
    inverse = Byte(inverse ^ inverse << 4);
    if (inverse & 0x80) inverse ^= 0x09;
    table[element] = Byte(0x63 ^ inverse ^ std::rotl(inverse, 1) ^ std::rotl(inverse, 2) ^
                          std::rotl(inverse, 3) ^ std::rotl(inverse, 4));
  } while (element != 1);
  table[0] = 0x63;
  return table;
}

constexpr Table inverseOf(const Table& table) {
  Table inverse{};
  for (std::size_t i = 0; i < table.size(); ++i) inverse[table[i]] = Byte(i);
  return inverse;
}

constexpr Table kSubstitution = makeSubstitution();
constexpr Table kInverseSubstitution = inverseOf(kSubstitution);

RoundKeys expandKey(std::string_view key) {
  RoundKeys keys{};
  std::copy_n(key.data(), std::min(key.size(), kBlockSize), keys.data());
  Byte roundConstant = 1;
  for (std::size_t i = kBlockSize; i < keys.size(); i += 4) {
    std::array<Byte, 4> word{keys[i - 4], keys[i - 3], keys[i - 2], keys[i - 1]};
    if (i % kBlockSize == 0) {
      std::rotate(word.begin(), word.begin() + 1, word.end());
      for (Byte& byte : word) byte = kSubstitution[byte];
      word[0] ^= roundConstant;
      roundConstant = timesTwo(roundConstant);
    }
    for (std::size_t j = 0; j < 4; ++j) keys[i + j] = keys[i + j - kBlockSize] ^ word[j];
  }
  return keys;
}

void addRoundKey(Block& block, const RoundKeys& keys, std::size_t round) {
  for (std::size_t i = 0; i < kBlockSize; ++i) block[i] ^= keys[round * kBlockSize + i];
}

// The state lies column by column, so row r of column c is byte 4c + r; row r turns left by r.
void substituteAndShift(Block& block) {
  const Block from = block;
  for (std::size_t i = 0; i < kBlockSize; ++i) block[i] = kSubstitution[from[i * 5 % kBlockSize]];
}

void unshiftAndSubstitute(Block& block) {
  const Block from = block;
  for (std::size_t i = 0; i < kBlockSize; ++i) {
    block[i * 5 % kBlockSize] = kInverseSubstitution[from[i]];
  }
}

void mixColumns(Block& block) {
  for (Byte* column = block.data(); column != block.data() + kBlockSize; column += 4) {
    const Byte first = column[0];
    const Byte all = Byte(column[0] ^ column[1] ^ column[2] ^ column[3]);
    for (int row = 0; row < 4; ++row) {
      const Byte next = row == 3 ? first : column[row + 1];
      column[row] ^= Byte(all ^ timesTwo(Byte(column[row] ^ next)));
    }
  }
}

// The inverse matrix is the forward one times this even simpler step.
void unmixColumns(Block& block) {
  for (Byte* column = block.data(); column != block.data() + kBlockSize; column += 4) {
    const Byte even = timesTwo(timesTwo(Byte(column[0] ^ column[2])));
    const Byte odd = timesTwo(timesTwo(Byte(column[1] ^ column[3])));
    column[0] ^= even;
    column[1] ^= odd;
    column[2] ^= even;
    column[3] ^= odd;
  }
  mixColumns(block);
}

void encryptBlock(const RoundKeys& keys, Block& block) {
  addRoundKey(block, keys, 0);
  for (std::size_t round = 1; round < kRounds; ++round) {
    substituteAndShift(block);
    mixColumns(block);
    addRoundKey(block, keys, round);
  }
  substituteAndShift(block);
  addRoundKey(block, keys, kRounds);
}

void decryptBlock(const RoundKeys& keys, Block& block) {
  addRoundKey(block, keys, kRounds);
  unshiftAndSubstitute(block);
  for (std::size_t round = kRounds - 1; round > 0; --round) {
    addRoundKey(block, keys, round);
    unmixColumns(block);
    unshiftAndSubstitute(block);
  }
  addRoundKey(block, keys, 0);
}

template <void (*transform)(const RoundKeys&, Block&)>
void eachBlock(const RoundKeys& keys, std::string_view blocks, char* out) {
  for (; !blocks.empty(); blocks.remove_prefix(kBlockSize), out += kBlockSize) {
    Block block;
    std::copy_n(blocks.data(), kBlockSize, block.data());
    transform(keys, block);
    std::copy_n(block.data(), kBlockSize, out);
  }
}

#if TOVI_AES_INSTRUCTIONS
#define TOVI_AES_TARGET __attribute__((target("aes,sse2")))

TOVI_AES_TARGET __m128i load(const void* bytes) {
  return _mm_loadu_si128(static_cast<const __m128i*>(bytes));
}

TOVI_AES_TARGET void store(void* bytes, __m128i value) {
  _mm_storeu_si128(static_cast<__m128i*>(bytes), value);
}

TOVI_AES_TARGET void hardwareEncrypt(const RoundKeys& keys, std::string_view blocks, char* out) {
  __m128i key[kRounds + 1];
  for (std::size_t i = 0; i <= kRounds; ++i) key[i] = load(&keys[i * kBlockSize]);
  for (std::size_t at = 0; at < blocks.size(); at += kBlockSize) {
    __m128i block = _mm_xor_si128(load(&blocks[at]), key[0]);
    for (std::size_t i = 1; i < kRounds; ++i) block = _mm_aesenc_si128(block, key[i]);
    store(out + at, _mm_aesenclast_si128(block, key[kRounds]));
  }
}

// The decryption instruction mixes columns before it adds the key, so the inner keys are mixed too.
TOVI_AES_TARGET void hardwareDecrypt(const RoundKeys& keys, std::string_view blocks, char* out) {
  __m128i key[kRounds + 1];
  for (std::size_t i = 0; i <= kRounds; ++i) key[i] = load(&keys[i * kBlockSize]);
  for (std::size_t i = 1; i < kRounds; ++i) key[i] = _mm_aesimc_si128(key[i]);
  for (std::size_t at = 0; at < blocks.size(); at += kBlockSize) {
    __m128i block = _mm_xor_si128(load(&blocks[at]), key[kRounds]);
    for (std::size_t i = kRounds - 1; i > 0; --i) block = _mm_aesdec_si128(block, key[i]);
    store(out + at, _mm_aesdeclast_si128(block, key[0]));
  }
}
#endif

const Engine& bestEngine() {
  const Engine* hardware = hardwareEngine();
  return hardware ? *hardware : portableEngine();
}

}  // namespace

const Engine& portableEngine() {
  static constexpr Engine kEngine{eachBlock<encryptBlock>, eachBlock<decryptBlock>};
  return kEngine;
}

const Engine* hardwareEngine() {
#if TOVI_AES_INSTRUCTIONS
  static constexpr Engine kEngine{hardwareEncrypt, hardwareDecrypt};
  return __builtin_cpu_supports("aes") ? &kEngine : nullptr;
#else
  return nullptr;
#endif
}

}  // namespace aes

namespace {

constexpr std::size_t kMaxPlainSize = 65535 - aes::kBlockSize;
constexpr std::size_t kMaxCipheredSize = std::numeric_limits<int>::max();

}  // namespace

Aes128::Aes128(std::string_view key16) : Aes128(key16, aes::bestEngine()) {}

Aes128::Aes128(std::string_view key16, const aes::Engine& engine)
    : mRoundKeys(aes::expandKey(key16)), mEngine(&engine) {}

int Aes128::encrypt(std::string_view plain, std::span<char> out) const {
  if (!plain.data() || plain.size() > kMaxPlainSize) return -1;
  const std::size_t pad = aes::kBlockSize - plain.size() % aes::kBlockSize;
  const std::size_t total = plain.size() + pad;
  if (out.size() < total + 1) return -1;
  std::array<char, aes::kBlockSize> last;
  last.fill(static_cast<char>(pad));
  const std::size_t whole = total - last.size();
  plain.copy(last.data(), last.size(), whole);
  mEngine->encrypt(mRoundKeys, plain.substr(0, whole), out.data());
  mEngine->encrypt(mRoundKeys, {last.data(), last.size()}, out.data() + whole);
  out[total] = '\0';
  return static_cast<int>(total);
}

int Aes128::decrypt(std::string_view ciphered, std::span<char> out) const {
  const std::size_t size = ciphered.size();
  if (!ciphered.data() || size == 0 || size % aes::kBlockSize != 0) return -1;
  if (size > kMaxCipheredSize || out.size() < size + 1) return -1;
  mEngine->decrypt(mRoundKeys, ciphered, out.data());
  const std::size_t last = static_cast<unsigned char>(out[size - 1]);
  if (last == 0 || last > size) return -1;
  out[size - last] = '\0';
  return static_cast<int>(size - last);
}

}  // namespace tovi::cipher
