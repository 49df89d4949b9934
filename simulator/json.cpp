// SPDX-License-Identifier: MIT
#include "simulator/json.h"

#include <algorithm>

#include "simulator/shapes.h"
#include "tools/number.h"
#include "tools/printable.h"

namespace tovi::sim {
namespace {

// The library would refuse to write what is no UTF-8, or change it.
std::string jsonString(std::string_view text) {
  std::string out = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') {
      out += {'\\', c};
    } else if (static_cast<unsigned char>(c) < 0x20) {
      out += "\\u00" + tools::hexDigits(static_cast<std::uint8_t>(c));
    } else {
      out += c;
    }
  }
  return out + '"';
}

}  // namespace

std::string jsonText(const Json& value) {
  if (value.is_string()) return jsonString(value.get_ref<const std::string&>());
  if (!value.is_structured()) return value.dump();
  std::string members;
  for (const auto& [name, member] : value.items()) {
    if (!members.empty()) members += ',';
    if (value.is_object()) members += jsonString(name) + ':';
    members += jsonText(member);
  }
  return value.is_object() ? '{' + members + '}' : '[' + members + ']';
}

Answer tellJson(const Request& request, const Json& value) {
  return tellText(request, jsonText(value));
}

std::optional<Json> jsonObject(View payload) {
  // The library would take a zero byte for the end of the text.
  if (std::find(payload.begin(), payload.end(), 0) != payload.end()) return std::nullopt;
  Json value = Json::parse(payload.begin(), payload.end(), nullptr, false);
  return value.is_object() ? std::optional(std::move(value)) : std::nullopt;
}

std::optional<int> jsonNumber(const Json& object, std::string_view name, int smallest,
                              int largest) {
  const auto member = object.find(name);
  if (member == object.end()) return std::nullopt;
  const bool digits = member->is_number_integer();
  if (!digits && !member->is_string()) return std::nullopt;
  return tools::parseNumber(digits ? member->dump() : member->get_ref<const std::string&>(),
                            smallest, largest);
}

}  // namespace tovi::sim
