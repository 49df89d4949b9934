// SPDX-License-Identifier: MIT
#include "tools/key.h"

namespace tovi::tools {
namespace {

constexpr std::size_t kKeyTextLength = 8;

struct Named {
  Cipher cipher;
  std::string_view name;
};
constexpr Named kNames[] = {
    {Cipher::None, "none"}, {Cipher::Des, "des"}, {Cipher::Aes, "aes"}, {Cipher::Sm4, "sm4"}};

}  // namespace

std::optional<Key> parseKey(std::string_view text) {
  if (text == cipherName(Cipher::None)) return Key{};
  const std::size_t colon = text.find(':');
  if (colon == std::string_view::npos) return std::nullopt;
  const std::string_view secret = text.substr(colon + 1);
  for (const Named& named : kNames) {
    if (named.cipher != Cipher::None && named.name == text.substr(0, colon) &&
        secret.size() == kKeyTextLength) {
      return Key{named.cipher, std::string(secret)};
    }
  }
  return std::nullopt;
}

std::string_view cipherName(Cipher cipher) {
  for (const Named& named : kNames) {
    if (named.cipher == cipher) return named.name;
  }
  return "";
}

}  // namespace tovi::tools
