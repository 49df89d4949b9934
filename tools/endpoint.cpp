// SPDX-License-Identifier: MIT
#include "tools/endpoint.h"

#include <algorithm>
#include <vector>

#include "platform/names.h"
#include "tools/number.h"

namespace tovi::tools {
namespace {

constexpr std::size_t kLongestName = 253;
constexpr std::size_t kLongestLabel = 63;
constexpr int kLastPort = 65535;

constexpr std::string_view kDigits = "0123456789";
constexpr std::string_view kHexDigits = "0123456789ABCDEFabcdef";
constexpr std::string_view kLabelCharacters =
    "-0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";

bool consistsOf(std::string_view text, std::string_view characters) {
  return text.find_first_not_of(characters) == std::string_view::npos;
}

std::vector<std::string_view> betweenDots(std::string_view text) {
  std::vector<std::string_view> parts;
  for (std::size_t dot = text.find('.'); dot != std::string_view::npos; dot = text.find('.')) {
    parts.push_back(text.substr(0, dot));
    text.remove_prefix(dot + 1);
  }
  parts.push_back(text);
  return parts;
}

bool isLabel(std::string_view text) {
  return !text.empty() && text.size() <= kLongestLabel && !text.starts_with('-') &&
         !text.ends_with('-') && consistsOf(text, kLabelCharacters);
}

bool isNumber(std::string_view label) {
  const bool hexadecimal = label.starts_with("0x") || label.starts_with("0X");
  return hexadecimal ? consistsOf(label.substr(2), kHexDigits) : consistsOf(label, kDigits);
}

// Numbers alone make no name: systems read "127.1" and "0x7F.1" as addresses.
bool isName(std::string_view text) {
  if (text.size() > kLongestName) return false;
  const std::vector<std::string_view> labels = betweenDots(text);
  return std::all_of(labels.begin(), labels.end(), isLabel) &&
         !std::all_of(labels.begin(), labels.end(), isNumber);
}

std::optional<Endpoint> endpointOf(std::string_view host, std::string_view portText,
                                   int leastPort) {
  const std::optional<int> port = parseNumber(portText, leastPort, kLastPort);
  if (!port || !(isDottedIpv4(host) || isName(host))) return std::nullopt;
  return Endpoint{std::string(host), static_cast<std::uint16_t>(*port)};
}

std::string lowerCase(std::string text) {
  for (char& c : text) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return text;
}

}  // namespace

bool isDottedIpv4(std::string_view text) {
  const std::vector<std::string_view> fields = betweenDots(text);
  return fields.size() == 4 &&
         std::all_of(fields.begin(), fields.end(), [](std::string_view field) {
           return parseNumber(field, 0, 255) && (field.size() == 1 || field.front() != '0');
         });
}

std::optional<Endpoint> parseEndpoint(std::string_view text) {
  const std::size_t colon = text.rfind(':');
  if (colon == std::string_view::npos) return std::nullopt;
  return endpointOf(text.substr(0, colon), text.substr(colon + 1), 1);
}

std::optional<Endpoint> parseListenEndpoint(std::string_view text) {
  const std::size_t colon = text.rfind(':');
  if (colon == std::string_view::npos) return endpointOf("0.0.0.0", text, 0);
  return endpointOf(text.substr(0, colon), text.substr(colon + 1), 0);
}

std::string endpointText(const Endpoint& endpoint) {
  return endpoint.host + ":" + std::to_string(endpoint.port);
}

std::optional<std::string> addressOf(const std::string& host) {
  if (isDottedIpv4(host)) return host;
  // Two names mean the same everywhere, so no name server is asked for them.
  const std::string name = lowerCase(host);
  if (name == "localhost" || name.ends_with(".localhost")) return "127.0.0.1";
  if (name == "invalid" || name.ends_with(".invalid")) return std::nullopt;
  return platform::addressOfName(name);
}

}  // namespace tovi::tools
