// SPDX-License-Identifier: MIT
// The JSON that commands carry, in requests and in replies.
#pragma once

#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>

#include "simulator/handlers.h"

namespace tovi::sim {

// Members stay in the order in which they were put in.
using Json = nlohmann::ordered_json;

// On one line. Texts keep their bytes, whatever their encoding: one that is no UTF-8 is told as it
// was given.
std::string jsonText(const Json& value);

// A query's result, told as any text is.
Answer tellJson(const Request& request, const Json& value);

// The object that a request holds; nothing for any other text.
std::optional<Json> jsonObject(View payload);

// A member that is a whole number, in digits or as a text of them, of at least the smallest and at
// most the largest.
std::optional<int> jsonNumber(const Json& object, std::string_view name, int smallest, int largest);

}  // namespace tovi::sim
