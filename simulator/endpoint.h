#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tovi::sim {

struct Endpoint {
  std::string address;  // dotted IPv4
  std::uint16_t port = 0;
};

// "192.168.1.10:5005" or "localhost:5005".
std::optional<Endpoint> parseEndpoint(std::string_view text);

std::string endpointText(const Endpoint& endpoint);

}  // namespace tovi::sim
