// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <span>
#include <string_view>

namespace tovi::cipher {

// SM4 in cipher block chaining mode. Every message starts its chain from the 16 key bytes.
class Sm4 {
 public:
  // A key of another length than 16 is cut, or filled with zero bytes.
  explicit Sm4(std::string_view key16);

  // Returns the length with its 1 to 16 padding bytes, or -1 when out is too small for it.
  int encrypt(std::string_view plain, std::span<char> out) const;

  // Returns the plaintext length; -1 when out is smaller than 16 bytes more than ciphered. A last
  // block that is incomplete or wrongly padded is left out of the plaintext and is no error.
  int decrypt(std::string_view ciphered, std::span<char> out) const;

 private:
  std::array<unsigned char, 16> mKey{};
};

}  // namespace tovi::cipher
