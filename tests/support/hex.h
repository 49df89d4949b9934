// SPDX-License-Identifier: MIT
// Bytes as tests write them.
#pragma once

#include <cctype>
#include <string>
#include <string_view>

namespace tovi::test {

// "AA FF 10" as three bytes.
inline std::string hex(std::string_view text) {
  std::string bytes;
  std::string digits;
  for (const char digit : text) {
    if (std::isxdigit(static_cast<unsigned char>(digit)) == 0) continue;
    digits += digit;
    if (digits.size() < 2) continue;
    bytes += static_cast<char>(std::stoi(digits, nullptr, 16));
    digits.clear();
  }
  return bytes;
}

// The other way round, for messages that a reader can compare.
inline std::string toHex(std::string_view bytes) {
  std::string text;
  for (const char byte : bytes) {
    if (!text.empty()) text += ' ';
    text += "0123456789ABCDEF"[static_cast<unsigned char>(byte) >> 4];
    text += "0123456789ABCDEF"[byte & 0x0F];
  }
  return text;
}

}  // namespace tovi::test
