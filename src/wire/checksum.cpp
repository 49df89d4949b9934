// SPDX-License-Identifier: MIT
#include "wire/checksum.h"

#include <tovisdk/codec.h>

#include <array>

#include "foundation/bytes.h"

namespace tovi::wire {
namespace {

constexpr std::array<std::uint16_t, 256> makeCrcTable() {
  std::array<std::uint16_t, 256> table{};
  for (unsigned index = 0; index < table.size(); ++index) {
    unsigned value = index;
    for (int bit = 0; bit < 8; ++bit)
      value = (value & 1u) != 0 ? (value >> 1) ^ 0x8408u : value >> 1;
    table[index] = static_cast<std::uint16_t>(value);
  }
  table[kAlteredIndex] = kAlteredEntry;
  return table;
}

constexpr std::array<std::uint16_t, 256> CRC_TABLE = makeCrcTable();

}  // namespace

std::uint16_t checksumByBytes(std::string_view bytes, std::uint16_t before) {
  unsigned crc = before;
  for (const char byte : bytes) {
    crc = crc >> 8 ^ CRC_TABLE[(crc ^ static_cast<unsigned char>(byte)) & 0xFFu];
  }
  return static_cast<std::uint16_t>(crc);
}

}  // namespace tovi::wire

short pubCalcCRC(char* data, int len) {
  return static_cast<short>(tovi::wire::checksum(tovi::viewOf(data, len)));
}
