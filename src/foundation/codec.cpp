// SPDX-License-Identifier: MIT
#include <tovisdk/codec.h>

#include <algorithm>
#include <cstdlib>

namespace {

char byteOf(unsigned value, int index) { return static_cast<char>(value >> (8 * index) & 0xFFu); }

unsigned unsignedByte(const char* buf, int offset) {
  return static_cast<unsigned char>(buf[offset]);
}

}  // namespace

void intToBytes(char* buf, int offset, int value) {
  for (int i = 0; i < 4; ++i) buf[offset + i] = byteOf(static_cast<unsigned>(value), i);
}

void normalIntToBytes(char* buf, int offset, int value) {
  for (int i = 0; i < 4; ++i) buf[offset + i] = byteOf(static_cast<unsigned>(value), 3 - i);
}

void shortToBytes(char* buf, int offset, short value) {
  for (int i = 0; i < 2; ++i) buf[offset + i] = byteOf(static_cast<unsigned>(value), i);
}

int bytesToInt(char* buf, int offset) {
  unsigned value = 0;
  for (int i = 3; i >= 0; --i) value = value << 8 | unsignedByte(buf, offset + i);
  return static_cast<int>(value);
}

short bytesToShort(char* buf, int offset) {
  return static_cast<short>(unsignedByte(buf, offset) | unsignedByte(buf, offset + 1) << 8);
}

std::tm getTm(int year, int month, int day, int hour, int minute, int second) {
  std::tm time{};
  time.tm_year = year;
  time.tm_mon = month;
  time.tm_mday = day;
  time.tm_hour = hour;
  time.tm_min = minute;
  time.tm_sec = second;
  return time;
}

int ipToInt(const std::string& ip) {
  constexpr std::size_t kMaxText = 15;
  const std::string text = ip.substr(0, kMaxText);
  unsigned number = 0;
  unsigned field = 0;
  for (std::size_t start = 0; start < text.size();) {
    const std::size_t dot = std::min(text.find('.', start), text.size());
    if (dot > start) {
      // A fifth field is shifted by 24 bits again, a sixth by 16, and so on.
      const unsigned shift = (24u - 8u * field++) & 31u;
      number += static_cast<unsigned>(std::atoi(text.substr(start, dot - start).c_str())) << shift;
    }
    start = dot + 1;
  }
  return static_cast<int>(number);
}
