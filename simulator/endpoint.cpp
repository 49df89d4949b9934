#include "simulator/endpoint.h"

#include <charconv>

namespace tovi::sim {
namespace {

// Takes a decimal number off the front of text.
std::optional<unsigned> takeNumber(std::string_view& text, unsigned largest) {
  unsigned number = 0;
  const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc{} || number > largest) return std::nullopt;
  text.remove_prefix(static_cast<std::size_t>(stop - text.data()));
  return number;
}

bool isDotted(std::string_view text) {
  for (int field = 0; field < 4; ++field) {
    if (field > 0) {
      if (text.empty() || text.front() != '.') return false;
      text.remove_prefix(1);
    }
    // A leading zero would make the rest octal to some.
    if (text.size() > 1 && text[0] == '0' && text[1] != '.') return false;
    if (!takeNumber(text, 255)) return false;
  }
  return text.empty();
}

}  // namespace

std::optional<Endpoint> parseEndpoint(std::string_view text) {
  const std::size_t colon = text.rfind(':');
  if (colon == std::string_view::npos) return std::nullopt;
  std::string_view address = text.substr(0, colon);
  if (address == "localhost") address = "127.0.0.1";
  std::string_view rest = text.substr(colon + 1);
  const auto port = takeNumber(rest, 0xFFFF);
  if (!isDotted(address) || !port || !rest.empty()) return std::nullopt;
  return Endpoint{std::string(address), static_cast<std::uint16_t>(*port)};
}

std::string endpointText(const Endpoint& endpoint) {
  return endpoint.address + ":" + std::to_string(endpoint.port);
}

}  // namespace tovi::sim
