// SPDX-License-Identifier: MIT
// Where a program is on the network, as people write it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tovi::tools {

struct Endpoint {
  std::string host;  // dotted IPv4 or a name
  std::uint16_t port = 0;
};

// What a text should have been that the parsers below refuse.
inline constexpr char kEndpointForm[] =
    "an IPv4 address or a name, and a port, as in 192.168.1.10:5005";
inline constexpr char kListenForm[] =
    "a port is 0 to 65535, alone or behind an IPv4 address or a name and a colon";

// Four decimal numbers without leading zeros, which some read as octal.
bool isDottedIpv4(std::string_view text);

// From "192.168.1.10:5005" or "sign-north.example:5005"; nothing when the text is anything else.
// Whether there is such a host is not looked up.
std::optional<Endpoint> parseEndpoint(std::string_view text);

// Where to wait: "5005" for every address of this machine, or an address or name of its own too.
// Port 0 lets the system choose.
std::optional<Endpoint> parseListenEndpoint(std::string_view text);

std::string endpointText(const Endpoint& endpoint);

// The dotted IPv4 address of a host; nothing when its name leads to none. Looking a name up may
// take as long as the system gives its name servers.
std::optional<std::string> addressOf(const std::string& host);

// How both programs say so.
inline constexpr char kNoSuchHost[] = "no such host";

}  // namespace tovi::tools
