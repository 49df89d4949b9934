// The controllers and the key that a command line names.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tovi::cli {

// Four decimal numbers without leading zeros, which some read as octal.
bool isDottedIpv4(std::string_view text);

struct Endpoint {
  std::string address;  // dotted IPv4
  std::uint16_t port = 0;
};

// From "192.168.1.10:5005"; nothing when the text is anything else.
std::optional<Endpoint> parseEndpoint(std::string_view text);

// Where to wait for a controller: "5005" for every address of this machine, or "192.168.1.2:5005".
// Port 0 lets the system choose.
std::optional<Endpoint> parseListenEndpoint(std::string_view text);

std::string endpointText(const Endpoint& endpoint);

// One controller a line; "#" starts a comment. Throws Unusable with the line's number.
std::vector<Endpoint> parseHosts(std::string_view text);

struct Key {
  enum class Cipher { None, Des, Aes, Sm4 } cipher = Cipher::None;
  std::string password;
};

// From "des:12345678", "aes:…" or "sm4:…"; the password has exactly 8 characters.
std::optional<Key> parseKey(std::string_view text);

}  // namespace tovi::cli
