// SPDX-License-Identifier: MIT
// Without branches: flags are too rare in some payloads and too frequent in others to be guessed.
#include "wire/escaping.h"

#include <tovisdk/protocal_parser.h>

#include <array>

namespace tovi::wire {
namespace by_bytes {
namespace {

constexpr char kEscape = ProtocalParser::PACKET_TRANSFER_FLAG;

constexpr bool isFlag(char byte) {
  return byte == ProtocalParser::PACKET_START_FLAG || byte == ProtocalParser::PACKET_END_FLAG ||
         byte == kEscape;
}

template <class Value>
using Table = std::array<Value, 256>;

template <class Value, class Rule>
constexpr Table<Value> makeTable(Rule rule) {
  Table<Value> table{};
  for (unsigned byte = 0; byte < table.size(); ++byte) {
    table[byte] = static_cast<Value>(rule(static_cast<char>(byte)));
  }
  return table;
}

// What a byte travels as: how many bytes, and the first of them.
constexpr auto kSizes = makeTable<unsigned char>([](char byte) { return isFlag(byte) ? 2 : 1; });
constexpr auto kFirsts = makeTable<char>([](char byte) { return isFlag(byte) ? kEscape : byte; });

// What a byte stands for behind an escape flag, both halves of flags being alike; 0 for none.
constexpr auto kFlags = makeTable<char>([](char half) {
  const auto flag = static_cast<char>(half << 4 | half);
  return (half & 0x0F) == half && isFlag(flag) ? flag : 0;
});

template <class Value>
Value in(const Table<Value>& table, char byte) {
  return table[static_cast<unsigned char>(byte)];
}

}  // namespace

std::size_t countFlags(std::string_view payload) {
  std::size_t size = 0;
  for (const char byte : payload) size += in(kSizes, byte);
  return size - payload.size();
}

char* escape(std::string_view payload, char* out) {
  for (const char byte : payload) {
    out[0] = in(kFirsts, byte);
    out[1] = byte & 0x0F;
    out += in(kSizes, byte);
  }
  return out;
}

char* unescape(std::string_view escaped, char* out) {
  bool valid = true;
  bool after = false;  // an escape flag
  for (const char byte : escaped) {
    const char flag = in(kFlags, byte);
    const bool known = flag != 0;
    valid &= known | !after;
    *out = after ? flag : byte;
    after = byte == kEscape;
    out += after ? 0 : 1;
  }
  return valid && !after ? out : nullptr;
}

}  // namespace by_bytes

#ifndef __SSE2__
std::size_t countFlags(std::string_view payload) { return by_bytes::countFlags(payload); }
char* escape(std::string_view payload, char* out) { return by_bytes::escape(payload, out); }
char* unescape(std::string_view escaped, char* out) { return by_bytes::unescape(escaped, out); }
#endif

}  // namespace tovi::wire
