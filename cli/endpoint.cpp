#include "cli/endpoint.h"

#include <charconv>

namespace tovi::cli {
namespace {

// A decimal number without sign, of which every character counts.
std::optional<unsigned> parseNumber(std::string_view text, unsigned most) {
  unsigned number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  const bool whole = error == std::errc() && end == text.data() + text.size();
  return whole && number <= most ? std::optional(number) : std::nullopt;
}

bool isDottedIpv4(std::string_view text) {
  int fields = 0;
  for (bool last = false; !last; ++fields) {
    const std::size_t dot = text.find('.');
    last = dot == std::string_view::npos;
    if (!parseNumber(text.substr(0, dot), 255)) return false;
    if (!last) text.remove_prefix(dot + 1);
  }
  return fields == 4;
}

}  // namespace

std::optional<Endpoint> parseEndpoint(const std::string& text) {
  const std::size_t colon = text.rfind(':');
  if (colon == std::string::npos || !isDottedIpv4(text.substr(0, colon))) return std::nullopt;
  const std::optional<unsigned> port = parseNumber(text.substr(colon + 1), 65535);
  if (!port || *port == 0) return std::nullopt;
  return Endpoint{text.substr(0, colon), static_cast<std::uint16_t>(*port)};
}

std::optional<Key> parseKey(const std::string& text) {
  constexpr std::size_t kPasswordLength = 8;
  const std::string cipher = text.substr(0, text.find(':'));
  Key key;
  if (cipher == "des") key.cipher = Key::Cipher::Des;
  if (cipher == "aes") key.cipher = Key::Cipher::Aes;
  if (cipher == "sm4") key.cipher = Key::Cipher::Sm4;
  if (key.cipher == Key::Cipher::None || text.size() != cipher.size() + 1 + kPasswordLength) {
    return std::nullopt;
  }
  key.password = text.substr(cipher.size() + 1);
  return key;
}

}  // namespace tovi::cli
