// SPDX-License-Identifier: MIT
// Tree to JSON text.
#pragma once

#include <string>

#include "json/json_node.h"

namespace tovi::json {

// Compact: no white space between the tokens.
std::string print(const Node& node);

// The digits of an integer or a double, the same everywhere and in every locale: doubles with six
// decimals, in scientific form outside 1e-6 to 1e9 (zero included).
std::string numberText(const Node& node);

}  // namespace tovi::json
