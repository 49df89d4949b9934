// SPDX-License-Identifier: MIT
#include "cli/hosts.h"

#include <algorithm>

#include "cli/reading.h"

namespace tovi::cli {
namespace {

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

}  // namespace

std::vector<tools::Endpoint> parseHosts(std::string_view text) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  std::vector<tools::Endpoint> hosts;
  for (int number = 1; !text.empty(); ++number) {
    const std::string line(withoutCommentAndBlanks(takeLine(text)));
    if (line.empty()) continue;
    const std::optional<tools::Endpoint> endpoint = tools::parseEndpoint(line);
    if (!endpoint) {
      throw Unusable("line " + std::to_string(number) + ": " + quoted(line) + " is not " +
                     tools::kEndpointForm);
    }
    hosts.push_back(*endpoint);
  }
  return hosts;
}

}  // namespace tovi::cli
