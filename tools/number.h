// SPDX-License-Identifier: MIT
// Numbers that people type.
#pragma once

#include <charconv>
#include <optional>
#include <string_view>

namespace tovi::tools {

// A decimal number without sign, of which every character counts.
template <class Number>
std::optional<Number> parseNumber(std::string_view text, Number least, Number most) {
  Number number = 0;
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  const bool whole = error == std::errc{} && stop == end && text.front() != '-';
  return whole && number >= least && number <= most ? std::optional(number) : std::nullopt;
}

}  // namespace tovi::tools
