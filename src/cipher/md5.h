// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace tovi::cipher {

// MD5 digest of text given in any number of pieces.
class Md5 {
 public:
  // Has no effect once the digest has been taken.
  void update(std::string_view text);

  // The digest as 32 lowercase hexadecimal characters; every call returns the same text.
  std::string hexDigest();

 private:
  void append(std::string_view text);
  void finish();
  void transform();

  std::array<std::uint32_t, 4> mState{0x67452301, 0xefcdab89, 0x98badcfe, 0x10325476};
  std::uint64_t mBitCount = 0;
  std::array<unsigned char, 64> mBlock{};
  bool mFinished = false;
};

// The 16-character AES and SM4 key of a password: the middle half of its digest text.
std::string derivedKey(std::string_view password);

}  // namespace tovi::cipher
