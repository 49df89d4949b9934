// SPDX-License-Identifier: MIT
#include "tests/support/fake_platform_test.h"
#include "tests/support/hex.h"
#include "tests/support/test_access.h"

namespace {

using tovi::test::FakePlatformTest;
namespace access = tovi::test::access;
using Log = std::vector<std::string>;

class KeySlots : public FakePlatformTest {
 protected:
  KeySlots() { fake().files.clear(); }

  // The record that tells which cipher the next frame takes.
  std::string mode() {
    fake().files.clear();
    access::makeSendPacket(mTraffic, 0x05, "\x01");
    return fake().log().at(0).substr(
        std::string("info ToviTraffic::makeSendPacket makeSendPacketEx ").size());
  }

  Log logOf(void (ToviTraffic::*setKey)(const char*), const char* password) {
    fake().files.clear();
    (mTraffic.*setKey)(password);
    return fake().log();
  }

  ToviTraffic mTraffic{"127.0.0.1", 5005};
};

TEST_F(KeySlots, DesComesBeforeAesAndAesBeforeSm4) {
  EXPECT_EQ(mode(), "normal mode");
  mTraffic.setSM4Key("sm4-key!");
  EXPECT_EQ(mode(), "sm4 mode, sm4 key = sm4-key!");
  mTraffic.setAesKey("aes-key!");
  EXPECT_EQ(mode(), "aes mode, aes key = aes-key!");
  mTraffic.setDesKey("des-key!");
  EXPECT_EQ(mode(), "des mode, des key = des-key!");
  // A later key of another cipher does not displace it, and clearing leaves it in force.
  mTraffic.setAesKey("aes-new!");
  EXPECT_EQ(mode(), "des mode, des key = des-key!");
  mTraffic.clearPassword();
  EXPECT_EQ(mode(), "des mode, des key = des-key!");
  // The way back is each setter with null.
  mTraffic.setDesKey(nullptr);
  EXPECT_EQ(mode(), "aes mode, aes key = aes-new!");
  mTraffic.setAesKey(nullptr);
  mTraffic.setSM4Key(nullptr);
  EXPECT_EQ(mode(), "normal mode");
}

TEST_F(KeySlots, OnlyEightCharactersAreAKey) {
  for (const char* password : {"", "1234567", "123456789"}) {
    EXPECT_EQ(
        logOf(&ToviTraffic::setDesKey, password),
        (Log{"info setDesKey start", "warn ToviTraffic::setDesKey password length not equal 8"}));
    EXPECT_EQ(
        logOf(&ToviTraffic::setAesKey, password),
        (Log{"info setAesKey start", "warn ToviTraffic::setAesKey password length not equal 8"}));
    EXPECT_EQ(
        logOf(&ToviTraffic::setSM4Key, password),
        (Log{"info setSM4Key start", "warn ToviTraffic::setAesKey password length not equal 8"}));
    EXPECT_EQ(mode(), "normal mode");
  }
}

TEST_F(KeySlots, SettersWriteTheirRecords) {
  const std::string set = "info ToviTraffic::setDesKey set encrypted key, key = 12345678";
  EXPECT_EQ(logOf(&ToviTraffic::setDesKey, "12345678"), (Log{"info setDesKey start", set}));
  EXPECT_EQ(logOf(&ToviTraffic::setSM4Key, "12345678"),
            (Log{"info setSM4Key start", "info ToviTraffic::setAesKey clear aes key"}));
  EXPECT_EQ(logOf(&ToviTraffic::setAesKey, "12345678"),
            (Log{"info setAesKey start", "info ToviTraffic::setAesKey clear aes key",
                 "info ToviTraffic::setDesKey clear aes key"}));
  EXPECT_EQ(logOf(&ToviTraffic::setAesKey, "12345678"),
            (Log{"info setAesKey start", "info ToviTraffic::setAesKey clear des key",
                 "info ToviTraffic::setAesKey clear aes key",
                 "info ToviTraffic::setDesKey clear aes key"}));
  EXPECT_EQ(logOf(&ToviTraffic::setDesKey, "12345678"),
            (Log{"info setDesKey start", "info ToviTraffic::setDesKey clear des key",
                 "info ToviTraffic::setDesKey clear aes key",
                 "info ToviTraffic::setDesKey clear aes key", set}));
  fake().files.clear();
  mTraffic.clearPassword();
  EXPECT_EQ(fake().log(),
            (Log{"info clearPassword start", "info ToviTraffic::setAesKey clear des key",
                 "info ToviTraffic::setAesKey clear aes key",
                 "info ToviTraffic::setAesKey clear sm4 key"}));
  EXPECT_EQ(logOf(&ToviTraffic::setDesKey, nullptr),
            (Log{"info setDesKey start",
                 "info ToviTraffic::setDesKey password is null, reset encrypted mode"}));
  EXPECT_EQ(logOf(&ToviTraffic::setSM4Key, nullptr),
            (Log{"info setSM4Key start",
                 "info ToviTraffic::setAesKey password is null, reset encrypted mode"}));
}

TEST_F(KeySlots, AKeySetAfterTheFirstReplyLeavesTheParserAsItIs) {
  fake().arrive(tovi::test::hex("AA FF FF 24 56 31 2E 32 CC 67 F4"));
  EXPECT_NE(access::getDataOn(42, mTraffic, 0x23, 0x24), nullptr);
  mTraffic.setDesKey("12345678");
  fake().arrive(tovi::test::hex("AA FF FF 24 56 31 2E 32 CC 67 F4"));
  const auto result = access::getDataOn(42, mTraffic, 0x23, 0x24);
  ASSERT_NE(result, nullptr);
  EXPECT_EQ(result->toStr(1), "V1.2");
  EXPECT_EQ(fake().opened + fake().closed, 0);
}

}  // namespace
