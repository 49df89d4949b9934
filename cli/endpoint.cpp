#include "cli/endpoint.h"

#include <algorithm>

#include "cli/reading.h"

namespace tovi::cli {
namespace {

constexpr int kLastPort = 65535;

// The next line without its end; text keeps the rest.
std::string_view takeLine(std::string_view& text) {
  const std::size_t end = std::min(text.find('\n'), text.size());
  const std::string_view line = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return line;
}

std::string_view withoutCommentAndBlanks(std::string_view line) {
  constexpr std::string_view kBlanks = " \t\r";
  line = line.substr(0, line.find('#'));
  line.remove_prefix(std::min(line.find_first_not_of(kBlanks), line.size()));
  return line.substr(0, line.find_last_not_of(kBlanks) + 1);
}

std::optional<Endpoint> endpointOf(std::string_view address, std::string_view portText,
                                   int leastPort) {
  const std::optional<int> port = parseNumber(portText, kLastPort);
  if (!isDottedIpv4(address) || !port || *port < leastPort) return std::nullopt;
  return Endpoint{std::string(address), static_cast<std::uint16_t>(*port)};
}

}  // namespace

bool isDottedIpv4(std::string_view text) {
  int fields = 0;
  for (bool last = false; !last; ++fields) {
    const std::size_t dot = text.find('.');
    const std::string_view field = text.substr(0, dot);
    if (!parseNumber(field, 255) || (field.size() > 1 && field.front() == '0')) return false;
    last = dot == std::string_view::npos;
    if (!last) text.remove_prefix(dot + 1);
  }
  return fields == 4;
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
  return endpoint.address + ":" + std::to_string(endpoint.port);
}

std::vector<Endpoint> parseHosts(std::string_view text) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  std::vector<Endpoint> hosts;
  for (int number = 1; !text.empty(); ++number) {
    const std::string line(withoutCommentAndBlanks(takeLine(text)));
    if (line.empty()) continue;
    const std::optional<Endpoint> endpoint = parseEndpoint(line);
    if (!endpoint) {
      throw Unusable("line " + std::to_string(number) + ": " + quoted(line) +
                     " is no IPv4 address and port");
    }
    hosts.push_back(*endpoint);
  }
  return hosts;
}

std::optional<Key> parseKey(std::string_view text) {
  constexpr std::size_t kPasswordLength = 8;
  const std::string_view cipher = text.substr(0, text.find(':'));
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
