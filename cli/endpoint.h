// The controller that a command line names.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace tovi::cli {

struct Endpoint {
  std::string address;  // dotted IPv4
  std::uint16_t port = 0;
};

// From "192.168.1.10:5005"; nothing when the text is anything else.
std::optional<Endpoint> parseEndpoint(const std::string& text);

struct Key {
  enum class Cipher { None, Des, Aes, Sm4 } cipher = Cipher::None;
  std::string password;
};

// From "des:12345678", "aes:…" or "sm4:…"; the password has exactly 8 characters.
std::optional<Key> parseKey(const std::string& text);

}  // namespace tovi::cli
