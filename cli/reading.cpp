// SPDX-License-Identifier: MIT
#include "cli/reading.h"

#include <tovisdk/text.h>

#include <fstream>
#include <iostream>
#include <iterator>

#include "platform/paths.h"
#include "tools/number.h"

namespace tovi::cli {

std::string quoted(const std::string& text) { return "\"" + text + "\""; }

int numberWithin(const std::string& word, int least, int most) {
  const std::optional<int> number = tools::parseNumber(word, least, most);
  if (!number) {
    throw Unusable(quoted(word) + " is no number from " + std::to_string(least) + " to " +
                   std::to_string(most));
  }
  return *number;
}

std::string localPath(const std::string& path) {
  std::string local = UTF8_To_string(path);
  // What cannot be converted comes back as it was, and is another name then.
  if (string_To_UTF8(local) == path) return local;
  throw Unusable(quoted(path) + " has characters that the local code page lacks");
}

std::optional<std::string> readText(const std::string& path) {
  std::ifstream file;
  if (path != "-") file.open(platform::pathOf(path), std::ios::binary);
  std::istream& stream = path == "-" ? std::cin : file;
  if (!stream) return std::nullopt;
  std::string text{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
  return stream.bad() ? std::nullopt : std::optional(std::move(text));
}

}  // namespace tovi::cli
