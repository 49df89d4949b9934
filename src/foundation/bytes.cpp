// SPDX-License-Identifier: MIT
#include "foundation/bytes.h"

namespace tovi {

std::string bytes(std::initializer_list<int> values) {
  std::string text;
  for (const int value : values) text += static_cast<char>(value);
  return text;
}

std::string lowFirst(int value) { return bytes({value, value >> 8}); }

std::uint16_t lowFirstAt(std::string_view bytes, std::size_t at) {
  const auto byteAt = [bytes](std::size_t n) { return static_cast<unsigned char>(bytes[n]); };
  return static_cast<std::uint16_t>(byteAt(at) | byteAt(at + 1) << 8);
}

std::string hexText(std::string_view bytes) {
  constexpr char kDigits[] = "0123456789ABCDEF";
  std::string text;
  for (const char byte : bytes) {
    text += kDigits[static_cast<unsigned char>(byte) >> 4];
    text += kDigits[static_cast<unsigned char>(byte) & 0x0F];
  }
  return text;
}

std::string_view viewOf(const char* data, int len) {
  return data == nullptr || len < 0 ? std::string_view()
                                    : std::string_view(data, static_cast<std::size_t>(len));
}

char* newArray(std::string_view bytes) {
  char* array = new char[bytes.size() + 1];
  bytes.copy(array, bytes.size());
  array[bytes.size()] = '\0';
  return array;
}

}  // namespace tovi
