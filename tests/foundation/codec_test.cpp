// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <tovisdk/codec.h>

#include "tests/support/hex.h"

namespace {

using tovi::test::hex;
using tovi::test::toHex;

std::string written(int size, void (*write)(char*)) {
  std::string buffer(static_cast<std::size_t>(size), '\x77');
  write(buffer.data());
  return toHex(buffer);
}

TEST(Codec, WritersPutBytesInTheirOrderAtTheirOffset) {
  EXPECT_EQ(written(6, [](char* b) { intToBytes(b, 1, 0x11223344); }), "77 44 33 22 11 77");
  EXPECT_EQ(written(6, [](char* b) { normalIntToBytes(b, 1, 0x11223344); }), "77 11 22 33 44 77");
  EXPECT_EQ(written(4, [](char* b) { shortToBytes(b, 1, 0x0123); }), "77 23 01 77");
  EXPECT_EQ(written(4, [](char* b) { intToBytes(b, 0, -2); }), "FE FF FF FF");
  EXPECT_EQ(written(2, [](char* b) { shortToBytes(b, 0, -32768); }), "00 80");
}

TEST(Codec, ReadersAreSigned) {
  EXPECT_EQ(bytesToShort(hex("FF 7F").data(), 0), 0x7FFF);
  EXPECT_EQ(bytesToShort(hex("00 80").data(), 0), -32768);
  EXPECT_EQ(bytesToShort(hex("80 01").data(), 0), 0x0180);
  EXPECT_EQ(bytesToShort(hex("55 FE FF").data(), 1), -2);
  EXPECT_EQ(bytesToInt(hex("44 33 22 11").data(), 0), 0x11223344);
  EXPECT_EQ(bytesToInt(hex("FF 80 01 00").data(), 0), 0x000180FF);
  EXPECT_EQ(bytesToInt(hex("01 00 F0 00").data(), 0), 0x00F00001);
  EXPECT_EQ(bytesToInt(hex("55 FF FF FF FF").data(), 1), -1);
  EXPECT_EQ(bytesToInt(hex("00 00 00 80").data(), 0), -2147483647 - 1);
}

TEST(Codec, ChecksumFollowsTheControllersTable) {
  struct {
    const char* bytes;
    unsigned checksum;
  } const cases[] = {
      {"", 0xFFFF},
      {"76", 0x0163},                          // through the altered entry; 0x1936 without it
      {"31 32 33 34 35 36 37 38 39", 0x8E9E},  // 0x6F91 with the unaltered table
      {"AA FF FF 10 CC", 0x0C34},
  };
  for (const auto& c : cases) {
    std::string bytes = hex(c.bytes);
    EXPECT_EQ(static_cast<unsigned short>(pubCalcCRC(bytes.data(), static_cast<int>(bytes.size()))),
              c.checksum)
        << c.bytes;
  }
  EXPECT_EQ(pubCalcCRC(nullptr, 0), -1);
  EXPECT_EQ(pubCalcCRC(nullptr, -5), -1);
}

TEST(Codec, CalendarTimeTakesItsFieldsUnchanged) {
  const std::tm time = getTm(124, 1, 2, 3, 4, 5);
  char text[32];
  std::strftime(text, sizeof text, "%Y %m %d %H %M %S", &time);  // counts from 1900 and from 1
  EXPECT_STREQ(text, "2024 02 02 03 04 05");
}

TEST(Codec, AddressTextBecomesItsNumber) {
  struct {
    const char* text;
    unsigned number;
  } const cases[] = {
      {"192.168.1.10", 0xC0A8010A}, {"255.255.255.255", 0xFFFFFFFF},  {"", 0}, {"...", 0},
      {"10", 0x0A000000},           {".1..2.", 0x01020000},  // empty fields are skipped
      {"1.2.3.4.5", 0x06020304},                             // a fifth field lands on the first
      {"x.2.3.4", 0x00020304},      {"192.168.100.2009", 0xC0A864C8},  // cut after 15 characters
  };
  for (const auto& c : cases) EXPECT_EQ(static_cast<unsigned>(ipToInt(c.text)), c.number) << c.text;
}

}  // namespace
