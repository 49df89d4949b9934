#include "simulator/bytes.h"

#include <algorithm>

namespace tovi::sim {
namespace {

constexpr char kDigits[] = "0123456789ABCDEF";

void appendHex(std::string& out, std::uint8_t byte) {
  out += kDigits[byte >> 4];
  out += kDigits[byte & 0x0F];
}

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

}  // namespace

Bytes bytesOf(std::string_view text) { return {text.begin(), text.end()}; }

std::string textOf(View bytes) { return {bytes.begin(), bytes.end()}; }

std::string hex(View bytes, std::size_t limit) {
  std::string out;
  for (const std::uint8_t byte : bytes.first(std::min(limit, bytes.size()))) {
    if (!out.empty()) out += ' ';
    appendHex(out, byte);
  }
  if (bytes.size() > limit) out += " ... (" + std::to_string(bytes.size()) + " bytes)";
  return out;
}

std::string printable(std::string_view text) {
  std::string out;
  while (!text.empty()) {
    const std::size_t length = printableLength(text);
    if (length > 0) {
      out += text.substr(0, length);
    } else {
      out += "\\x";
      appendHex(out, static_cast<std::uint8_t>(text[0]));
    }
    text.remove_prefix(std::max<std::size_t>(length, 1));
  }
  return out;
}

}  // namespace tovi::sim
