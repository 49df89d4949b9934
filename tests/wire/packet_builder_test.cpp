// SPDX-License-Identifier: MIT
#include <tovisdk/packet.h>
#include <tovisdk/text.h>

#include "tests/support/failing_memory.h"
#include "tests/support/fake_platform_test.h"
#include "tests/support/hex.h"

namespace {

using tovi::test::FakePlatformTest;
using tovi::test::hex;
using tovi::test::toHex;

constexpr char kPassword[] = "12345678";

class PacketBuilder : public FakePlatformTest {
 protected:
  static std::string build(int what, std::string payload, int mode, const char* password) {
    std::string key = password == nullptr ? "" : password;
    int size = -1;
    char* frame =
        makeSendPacketEx(static_cast<char>(what), payload.data(), static_cast<int>(payload.size()),
                         mode, password == nullptr ? nullptr : key.data(), &size);
    std::string bytes(frame, static_cast<std::size_t>(size));
    deleteArry(&frame);
    return bytes;
  }
};

TEST_F(PacketBuilder, FramesMatchBytesComputedElsewhere) {
  struct {
    int what;
    const char* payload;
    int mode;
    const char* frame;
  } const cases[] = {
      {0x10, "", 0, "AA FF FF 10 CC 34 0C"},
      {0x07, "02 50", 0, "AA FF FF 07 02 50 CC 38 4A"},
      // Only the three flags are escaped, and only in the payload.
      {0x7E, "00 AA CC EE FF", 0, "AA FF FF 7E 00 EE 0A EE 0C EE 0E FF CC 29 A0"},
      {0xAA, "", 0, "AA FF FF AA CC 2A CB"},
      {0xCC, "01", 0, "AA FF FF CC 01 CC B5 2B"},
      {0xEE, "EE", 0, "AA FF FF EE EE 0E CC 34 E2"},
      // A checksum that passes through the altered table entry.
      {0x08, "01 05", 0, "AA FF FF 08 01 05 CC DA BF"},
      {0x07, "02 50", 1, "AA FF FF 07 4A EF E1 D4 6C AF CD 23 CC 49 4B"},
      {0x07, "02 50", 2, "AA FF FF 07 48 62 2C E7 2E 5A 62 E3 F6 C6 30 F2 97 EC D2 84 CC 87 EE"},
      {0x07, "02 50", 3, "AA FF FF 07 70 DA 41 E5 59 85 4F D0 E1 92 72 9F 4C BF F7 F3 CC 66 EF"},
      // Never enciphered: the secret handshake, and modes that are none.
      {0x70, "01", 1, "AA FF FF 70 01 CC 54 04"},
      {0x07, "02 50", 4, "AA FF FF 07 02 50 CC 38 4A"},
      {0x07, "02 50", -1, "AA FF FF 07 02 50 CC 38 4A"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(toHex(build(c.what, hex(c.payload), c.mode, kPassword)), toHex(hex(c.frame)))
        << "mode " << c.mode << " payload " << c.payload;
  }
}

TEST_F(PacketBuilder, AnEmptyPayloadOrNoKeyStaysPlain) {
  for (const int mode : {1, 2, 3}) {
    EXPECT_EQ(toHex(build(0x10, "", mode, kPassword)), "AA FF FF 10 CC 34 0C");
    EXPECT_EQ(toHex(build(0x07, hex("02 50"), mode, nullptr)), "AA FF FF 07 02 50 CC 38 4A");
  }
}

TEST_F(PacketBuilder, AKeyOfAnyLengthIsReadInItsBounds) {
  for (const char* key : {"", "1", "1234567", "123456789012345"}) {
    for (const int mode : {1, 2, 3}) EXPECT_GE(build(0x07, "x", mode, key).size(), 15u);
  }
}

TEST_F(PacketBuilder, APayloadThatOutgrowsAFrameIsSentEmpty) {
  struct {
    int mode;
    std::size_t fits;
    const char* record;
  } const cases[] = {
      {1, 65527, "error makeSendPacketEx des encode error, data lenth = -1"},
      {2, 65519, "error makeSendPacketEx aes encode error, data lenth = -1"},
      {3, 65519, "error makeSendPacketEx sm4 encode error, data lenth = -1"},
  };
  for (const auto& c : cases) {
    EXPECT_GT(build(0x10, std::string(c.fits, 'x'), c.mode, kPassword).size(), 65520u);
    EXPECT_FALSE(fake().logged(c.record));
    EXPECT_EQ(toHex(build(0x10, std::string(c.fits + 1, 'x'), c.mode, kPassword)),
              "AA FF FF 10 CC 34 0C");
    EXPECT_TRUE(fake().logged(c.record));
  }
  EXPECT_EQ(build(0x10, std::string(70000, '\xAA'), 0, nullptr).size(), 140007u);
}

TEST_F(PacketBuilder, APlainFrameTakesMemoryOnce) {
  std::string payload(60000, '\xAA');
  int size = 0;
  char* frame = nullptr;
  {
    const tovi::test::FailingMemory failing(2, true);
    frame = makeSendPacketEx(0x13, payload.data(), 60000, 0, nullptr, &size);
  }
  EXPECT_NE(frame, nullptr);
  EXPECT_EQ(size, 120007);
  deleteArry(&frame);
}

TEST_F(PacketBuilder, ArgumentsThatCannotBeFramedAreRefused) {
  int size = 77;
  EXPECT_EQ(makeSendPacketEx(0x10, nullptr, 3, 0, nullptr, &size), nullptr);
  EXPECT_EQ(size, 0);
  EXPECT_EQ(makeSendPacketEx(0x10, nullptr, 0, 0, nullptr, nullptr), nullptr);
  EXPECT_TRUE(fake().logged("error makeSendPacketEx argument refused, len = 3"));
  for (const int empty : {0, -3}) {
    char* frame = makeSendPacketEx(0x10, nullptr, empty, 0, nullptr, &size);
    EXPECT_EQ(size, 7);
    deleteArry(&frame);
  }
}

}  // namespace
