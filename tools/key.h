// SPDX-License-Identifier: MIT
// Keys of enciphered exchanges, as people write them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tovi::tools {

enum class Cipher { None, Des, Aes, Sm4 };

struct Key {
  Cipher cipher = Cipher::None;
  std::string text;  // exactly 8 characters, unless there is no cipher
};

// What a text should have been that is no key. Never shown beside it, since it may be secret.
inline constexpr char kKeyForm[] =
    "a key is des:, aes: or sm4: and exactly 8 characters, or else none";

// "des:12345678", "aes:…", "sm4:…" or "none".
std::optional<Key> parseKey(std::string_view text);

// "des", "aes", "sm4" or "none".
std::string_view cipherName(Cipher cipher);

}  // namespace tovi::tools
