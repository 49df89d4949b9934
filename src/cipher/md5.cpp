// SPDX-License-Identifier: MIT
#include "cipher/md5.h"

#include <algorithm>
#include <bit>
#include <cstddef>

namespace tovi::cipher {
namespace {

constexpr std::array<std::uint32_t, 64> kSines{
    0xd76aa478, 0xe8c7b756, 0x242070db, 0xc1bdceee, 0xf57c0faf, 0x4787c62a, 0xa8304613, 0xfd469501,
    0x698098d8, 0x8b44f7af, 0xffff5bb1, 0x895cd7be, 0x6b901122, 0xfd987193, 0xa679438e, 0x49b40821,
    0xf61e2562, 0xc040b340, 0x265e5a51, 0xe9b6c7aa, 0xd62f105d, 0x02441453, 0xd8a1e681, 0xe7d3fbc8,
    0x21e1cde6, 0xc33707d6, 0xf4d50d87, 0x455a14ed, 0xa9e3e905, 0xfcefa3f8, 0x676f02d9, 0x8d2a4c8a,
    0xfffa3942, 0x8771f681, 0x6d9d6122, 0xfde5380c, 0xa4beea44, 0x4bdecfa9, 0xf6bb4b60, 0xbebfbc70,
    0x289b7ec6, 0xeaa127fa, 0xd4ef3085, 0x04881d05, 0xd9d4d039, 0xe6db99e5, 0x1fa27cf8, 0xc4ac5665,
    0xf4292244, 0x432aff97, 0xab9423a7, 0xfc93a039, 0x655b59c3, 0x8f0ccc92, 0xffeff47d, 0x85845dd1,
    0x6fa87e4f, 0xfe2ce6e0, 0xa3014314, 0x4e0811a1, 0xf7537e82, 0xbd3af235, 0x2ad7d2bb, 0xeb86d391};

constexpr int kRotations[4][4] = {
    {7, 12, 17, 22}, {5, 9, 14, 20}, {4, 11, 16, 23}, {6, 10, 15, 21}};

constexpr std::size_t kLengthOffset = 56;

std::uint32_t littleEndianWord(const unsigned char* bytes) {
  return std::uint32_t{bytes[0]} | std::uint32_t{bytes[1]} << 8 | std::uint32_t{bytes[2]} << 16 |
         std::uint32_t{bytes[3]} << 24;
}

std::uint32_t mix(std::size_t round, std::uint32_t b, std::uint32_t c, std::uint32_t d) {
  switch (round) {
    case 0:
      return (b & c) | (~b & d);
    case 1:
      return (b & d) | (c & ~d);
    case 2:
      return b ^ c ^ d;
    default:
      return c ^ (b | ~d);
  }
}

std::size_t wordIndex(std::size_t round, std::size_t step) {
  constexpr std::size_t kStride[] = {1, 5, 3, 7};
  constexpr std::size_t kStart[] = {0, 1, 5, 0};
  return (kStart[round] + kStride[round] * step) % 16;
}

}  // namespace

void Md5::update(std::string_view text) {
  if (!mFinished) append(text);
}

std::string Md5::hexDigest() {
  if (!mFinished) finish();
  constexpr char kDigits[] = "0123456789abcdef";
  std::string text;
  for (std::uint32_t word : mState) {
    for (int i = 0; i < 4; ++i, word >>= 8) {
      text += kDigits[word >> 4 & 0xf];
      text += kDigits[word & 0xf];
    }
  }
  return text;
}

void Md5::append(std::string_view text) {
  while (!text.empty()) {
    const std::size_t used = mBitCount / 8 % mBlock.size();
    const std::size_t count = std::min(text.size(), mBlock.size() - used);
    std::copy_n(text.data(), count, mBlock.data() + used);
    mBitCount += std::uint64_t{count} * 8;
    text.remove_prefix(count);
    if (used + count == mBlock.size()) transform();
  }
}

void Md5::finish() {
  std::uint64_t bits = mBitCount;
  append("\x80");
  while (mBitCount / 8 % mBlock.size() != kLengthOffset) append(std::string_view("\0", 1));
  std::array<char, 8> length;
  for (char& byte : length) {
    byte = static_cast<char>(bits & 0xff);
    bits >>= 8;
  }
  append({length.data(), length.size()});
  mFinished = true;
}

void Md5::transform() {
  auto [a, b, c, d] = mState;
  for (std::size_t step = 0; step < kSines.size(); ++step) {
    const std::size_t round = step / 16;
    const std::uint32_t word = littleEndianWord(&mBlock[4 * wordIndex(round, step)]);
    const std::uint32_t sum = a + mix(round, b, c, d) + kSines[step] + word;
    a = d;
    d = c;
    c = b;
    b += std::rotl(sum, kRotations[round][step % 4]);
  }
  mState[0] += a;
  mState[1] += b;
  mState[2] += c;
  mState[3] += d;
}

std::string derivedKey(std::string_view password) {
  Md5 md5;
  md5.update(password);
  return md5.hexDigest().substr(8, 16);
}

}  // namespace tovi::cipher
