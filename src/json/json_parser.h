// SPDX-License-Identifier: MIT
// JSON text to tree.
#pragma once

#include <cstddef>
#include <memory>
#include <string_view>

#include "json/json_node.h"

namespace tovi::json {

// Arrays and objects nested deeper than this are refused, so that no text can exhaust the stack.
inline constexpr int kMaxDepth = 512;

struct ParseResult {
  std::unique_ptr<Node> root;  // null when the text is not one JSON value
  std::size_t stop = 0;        // where parsing stopped: the failing point, or the end of the text
};

// Strict JSON: exactly one value, white space around it allowed. Beyond the grammar:
// - Bytes pass through strings as they are, valid UTF-8 or not, control characters too. Unknown
//   escapes and surrogates without their partner are errors; "\u0000" gives a zero byte.
// - A number without fraction and exponent is an integer: signed with a leading "-" or when it fits
//   32 bits signed, else unsigned. Past 64 bits it becomes a double, like every other number.
// - A number too large for a double is an error, for no text could carry the infinity onwards; one
//   too small is zero.
// - Members with equal keys are all kept, in order; lookup gives the first.
ParseResult parse(std::string_view text);

}  // namespace tovi::json
