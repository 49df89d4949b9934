// SPDX-License-Identifier: MIT
#include "simulator/bytes.h"

#include <algorithm>

#include "tools/printable.h"

namespace tovi::sim {
Bytes bytesOf(std::string_view text) { return {text.begin(), text.end()}; }

std::string textOf(View bytes) { return {bytes.begin(), bytes.end()}; }

std::string hex(View bytes, std::size_t limit) {
  std::string out;
  for (const std::uint8_t byte : bytes.first(std::min(limit, bytes.size()))) {
    if (!out.empty()) out += ' ';
    out += tools::hexDigits(byte);
  }
  if (bytes.size() > limit) out += " ... (" + std::to_string(bytes.size()) + " bytes)";
  return out;
}

}  // namespace tovi::sim
