// SPDX-License-Identifier: MIT
#include "json/json_printer.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <string_view>

namespace tovi::json {
namespace {

void appendEscaped(std::string& out, char c) {
  constexpr std::string_view kNames = "\"\\bfnrt";
  constexpr std::string_view kValues = "\"\\\b\f\n\r\t";
  constexpr std::string_view kHex = "0123456789abcdef";
  const auto code = static_cast<unsigned char>(c);
  if (const auto index = kValues.find(c); index != std::string_view::npos) {
    out += '\\';
    out += kNames[index];
  } else if (code < 0x20) {
    out += "\\u00";
    out += kHex[code >> 4];
    out += kHex[code & 0x0F];
  } else {
    out += c;
  }
}

void appendQuoted(std::string& out, std::string_view text) {
  out += '"';
  for (const char c : text) appendEscaped(out, c);
  out += '"';
}

void appendNode(std::string& out, const Node& node);

void appendChildren(std::string& out, const Node& node) {
  const bool isObject = node.type == NodeType::Object;
  out += isObject ? '{' : '[';
  bool first = true;
  for (const auto& child : node.children) {
    if (!first) out += ',';
    first = false;
    if (isObject) {
      appendQuoted(out, child->key);
      out += ':';
    }
    appendNode(out, *child);
  }
  out += isObject ? '}' : ']';
}

void appendNode(std::string& out, const Node& node) {
  switch (node.type) {
    case NodeType::False:
      out += "false";
      break;
    case NodeType::True:
      out += "true";
      break;
    case NodeType::Null:
      out += "null";
      break;
    case NodeType::Integer:
    case NodeType::Double:
      out += numberText(node);
      break;
    case NodeType::String:
      appendQuoted(out, node.text);
      break;
    case NodeType::Array:
    case NodeType::Object:
      appendChildren(out, node);
      break;
  }
}

}  // namespace

std::string print(const Node& node) {
  std::string out;
  appendNode(out, node);
  return out;
}

std::string numberText(const Node& node) {
  std::array<char, 32> buffer{};  // the longest is a 64-bit integer of 20 characters
  char* const begin = buffer.data();
  char* const end = begin + buffer.size();
  std::to_chars_result result{};
  if (node.type == NodeType::Integer) {
    result = node.isSigned ? std::to_chars(begin, end, node.integer)
                           : std::to_chars(begin, end, static_cast<std::uint64_t>(node.integer));
  } else {
    const double size = std::fabs(node.number);
    const bool isOrdinary = size >= 1e-6 && size <= 1e9;
    result =
        std::to_chars(begin, end, node.number,
                      isOrdinary ? std::chars_format::fixed : std::chars_format::scientific, 6);
  }
  return {begin, result.ptr};
}

}  // namespace tovi::json
