// SPDX-License-Identifier: MIT
#include "tests/support/wire.h"

#include "tests/support/hex.h"

namespace tovi::test {
namespace {

// Bit by bit. One index of the byte-wise table that controllers use differs from the polynomial.
unsigned checksum(std::string_view bytes) {
  unsigned crc = 0xFFFF;
  for (const char byte : bytes) {
    const unsigned index = (crc ^ static_cast<unsigned char>(byte)) & 0xFF;
    unsigned step = index;
    for (int bit = 0; bit < 8; ++bit) step = (step & 1) != 0 ? step >> 1 ^ 0x8408 : step >> 1;
    crc = crc >> 8 ^ (index == 0x89 ? 0x019C : step);
  }
  return crc;
}

std::string withChecksum(std::string bytes) {
  const unsigned crc = checksum(bytes);
  bytes += static_cast<char>(crc & 0xFF);
  bytes += static_cast<char>(crc >> 8);
  return bytes;
}

}  // namespace

std::string frame(std::string_view hexText) {
  const std::string content = hex(hexText);
  std::string bytes = "\xAA\xFF\xFF" + content.substr(0, 1);
  for (const char byte : content.substr(1)) {
    switch (static_cast<unsigned char>(byte)) {
      case 0xAA:
        bytes += "\xEE\x0A";
        break;
      case 0xCC:
        bytes += "\xEE\x0C";
        break;
      case 0xEE:
        bytes += "\xEE\x0E";
        break;
      default:
        bytes += byte;
    }
  }
  return withChecksum(bytes + "\xCC");
}

std::string unframe(std::string_view frame) {
  if (frame.size() < 7 || frame.substr(0, 3) != "\xAA\xFF\xFF" ||
      frame[frame.size() - 3] != '\xCC') {
    return "no frame: " + toHex(frame);
  }
  if (withChecksum(std::string(frame.substr(0, frame.size() - 2))) != frame) {
    return "wrong checksum: " + toHex(frame);
  }
  std::string content(frame.substr(3, 1));
  const std::string_view escaped = frame.substr(4, frame.size() - 7);
  for (std::size_t i = 0; i < escaped.size(); ++i) {
    const bool flag = escaped[i] == '\xEE';
    if (flag && ++i == escaped.size()) return "escape without an end: " + toHex(frame);
    // 0A stands for AA, 0C for CC, 0E for EE.
    content += flag ? static_cast<char>(escaped[i] | escaped[i] << 4) : escaped[i];
  }
  return toHex(content);
}

}  // namespace tovi::test
