// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

namespace tovi::cipher {

namespace aes {

using RoundKeys = std::array<std::uint8_t, 176>;

// Transforms whole 16-byte blocks, each on its own, from one place to another.
struct Engine {
  void (*encrypt)(const RoundKeys& keys, std::string_view blocks, char* out);
  void (*decrypt)(const RoundKeys& keys, std::string_view blocks, char* out);
};

const Engine& portableEngine();

// Null when the processor has no AES instructions.
const Engine* hardwareEngine();

}  // namespace aes

// AES-128 in electronic code book mode with one to sixteen padding bytes, each of the pad's length.
class Aes128 {
 public:
  // A key of another length than 16 is cut, or filled with zero bytes.
  explicit Aes128(std::string_view key16);
  Aes128(std::string_view key16, const aes::Engine& engine);

  // Returns the padded length; out also takes a NUL behind it. -1 when plain has no data pointer or
  // is longer than 65519 bytes, or when out is too small.
  int encrypt(std::string_view plain, std::span<char> out) const;

  // Returns the length without padding, with a NUL behind it. -1 when ciphered has no data pointer,
  // is empty or not made of whole blocks, when out is smaller than one byte more than ciphered, or
  // when the last plaintext byte is 0 or more than the length. Other padding bytes go unchecked.
  int decrypt(std::string_view ciphered, std::span<char> out) const;

 private:
  aes::RoundKeys mRoundKeys;
  const aes::Engine* mEngine;
};

}  // namespace tovi::cipher
