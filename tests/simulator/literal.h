// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

#include "simulator/bytes.h"

namespace tovi::sim {

// The bytes of a hexadecimal text, as in "AA FF 07".
inline Bytes literal(std::string_view text) {
  const auto digit = [](char c) {
    return static_cast<unsigned>(c <= '9' ? c - '0' : c - 'A' + 10);
  };
  Bytes bytes;
  for (std::size_t i = 0; i + 1 < text.size(); i += 3) {
    bytes.push_back(static_cast<std::uint8_t>(digit(text[i]) << 4 | digit(text[i + 1])));
  }
  return bytes;
}

}  // namespace tovi::sim
