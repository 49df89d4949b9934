// SPDX-License-Identifier: MIT
#include "device/json_reply.h"

#include <algorithm>
#include <charconv>
#include <climits>

namespace tovi::device {
namespace {

// Both ends of the text count: what follows a number is passed over, or is part of it.
template <class Number>
std::from_chars_result read(std::string_view text, Number& number) {
  return std::from_chars(text.data(), text.data() + text.size(), number);
}

}  // namespace

std::optional<int> numberIn(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(" \t\n\v\f\r"), text.size()));
  if (text.starts_with('+')) text.remove_prefix(1);
  // A large number of JSON reads as in "1.500000e+09".
  double number = 0;
  if (read(text, number).ptr == text.data() + text.size() && !text.empty()) {
    if (!(number > INT_MIN - 1.0 && number < INT_MAX + 1.0)) return std::nullopt;
    return static_cast<int>(number);
  }
  int whole = 0;
  if (read(text, whole).ec == std::errc::result_out_of_range) return std::nullopt;
  return whole;
}

}  // namespace tovi::device
