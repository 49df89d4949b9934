// SPDX-License-Identifier: MIT
#include "tools/printable.h"

#include <algorithm>

namespace tovi::tools {
namespace {

// The length of the printable character that text begins with; 0 when it must not reach a terminal.
std::size_t printableLength(std::string_view text) {
  const auto at = [text](std::size_t i) { return static_cast<std::uint8_t>(text[i]); };
  const std::uint8_t first = at(0);
  if (first < 0x80) return first >= 0x20 && first != 0x7F ? 1 : 0;

  const std::size_t length = first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
  if (first < 0xC2 || first > 0xF4 || text.size() < length) return 0;
  for (std::size_t i = 1; i < length; ++i) {
    if ((at(i) & 0xC0) != 0x80) return 0;
  }
  const bool control = first == 0xC2 && at(1) < 0xA0;
  const bool overlong = (first == 0xE0 && at(1) < 0xA0) || (first == 0xF0 && at(1) < 0x90);
  const bool surrogate = first == 0xED && at(1) >= 0xA0;
  const bool beyond = first == 0xF4 && at(1) >= 0x90;
  return control || overlong || surrogate || beyond ? 0 : length;
}

bool isBreak(char c) { return c == '\n' || c == '\t'; }

}  // namespace

std::string hexDigits(std::uint8_t byte) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  return {kDigits[byte >> 4], kDigits[byte & 0x0F]};
}

std::string printable(std::string_view text, Breaks breaks) {
  std::string out;
  while (!text.empty()) {
    const bool kept = breaks == Breaks::Kept && isBreak(text.front());
    const std::size_t length = kept ? 1 : printableLength(text);
    if (length > 0) {
      out += text.substr(0, length);
    } else {
      out += "\\x" + hexDigits(static_cast<std::uint8_t>(text.front()));
    }
    text.remove_prefix(std::max<std::size_t>(length, 1));
  }
  return out;
}

}  // namespace tovi::tools
