// SPDX-License-Identifier: MIT
#include "tests/support/fake_platform_test.h"
#include "tests/support/hex.h"
#include "tests/support/test_access.h"

namespace {

using tovi::test::FakePlatformTest;
using tovi::test::hex;
using tovi::test::toHex;
namespace access = tovi::test::access;
using Log = std::vector<std::string>;

constexpr char kSet80[] = "AA FF FF 07 02 50 CC 38 4A";
constexpr char kAccepted[] = "AA FF FF 08 01 CC 4E 42";
constexpr char kRefused[] = "AA FF FF 08 00 CC 96 5B";
constexpr char kStatus80[] =
    "AA FF FF 02 34 12 00 00 00 00 05 01 01 01 01 19 01 00 00 C8 02 50 CC E5 4C";

class ExchangeTest : public FakePlatformTest {
 protected:
  // Every connection is closed and every start-up paired, whatever became of the exchange.
  void expectNothingLeft() {
    EXPECT_EQ(fake().closed, fake().opened);
    EXPECT_EQ(fake().cleanUps, fake().startUps);
  }

  ToviTraffic mTraffic{"127.0.0.1", 5005};
};

TEST_F(ExchangeTest, ASettingIsOneFrameAndOneStatusByte) {
  struct {
    const char* reply;
    int result;
    ToviOutcome outcome;
  } const cases[] = {
      {kAccepted, 1, ToviOutcome::Done},
      {"AA FF FF 08 CC 65 57", 1, ToviOutcome::Done},  // no status byte: accepted
      {kRefused, -12, ToviOutcome::Rejected},
      {"AA FF FF 08 02 CC 26 68", -12, ToviOutcome::Rejected},
      {"AA FF FF 08 FF CC 56 A4", -12, ToviOutcome::Rejected},
      {"AA FF FF 08 01 CC 4E 43", -11, ToviOutcome::NoReply},        // wrong checksum
      {"AA FF FF 08 01 EE 00 CC 83 07", -11, ToviOutcome::NoReply},  // bad escape
      {"AA FF FF 10 CC 34 0C", -11, ToviOutcome::NoReply},           // another command
  };
  for (const auto& c : cases) {
    ToviTraffic traffic("127.0.0.1", 5005);
    fake().sent.clear();
    fake().incoming.clear();
    fake().arrive(hex(c.reply));
    EXPECT_EQ(traffic.setBrightness(80), c.result) << c.reply;
    EXPECT_EQ(traffic.lastOutcome(), c.outcome) << c.reply;
    ASSERT_EQ(fake().sent.size(), 1u);
    EXPECT_EQ(toHex(fake().sent[0]), kSet80);
    expectNothingLeft();
  }
}

TEST_F(ExchangeTest, ASettingWritesItsRecords) {
  fake().files.clear();
  fake().arrive(hex(kAccepted));
  mTraffic.setBrightness(80);
  EXPECT_EQ(fake().log(),
            (Log{"info setBrightness start", "info ToviTraffic::getSocket return toviSocket",
                 "info ToviTraffic::makeSendPacket makeSendPacketEx normal mode",
                 "info ToviTraffic::recv start",
                 "info ToviTraffic::recv create protocalParser normal mode",
                 "info ToviTraffic::recv recv start", "info ToviTraffic::recv start recvProc",
                 "info ToviTraffic::recv recv start, recv result = 8",
                 "info ToviTraffic::recv recv buf end", "info ToviTraffic::normalSet success",
                 "info ToviTraffic::closeSocket close toviSocket"}));
  fake().files.clear();
  fake().arrive(hex("AA FF FF 08 41 CC 28 04"));
  mTraffic.setBrightness(80);
  EXPECT_TRUE(
      fake().logged("error ToviTraffic::normalSet recvBuf result = A, result = SEND_RECV_ERROR"));
}

TEST_F(ExchangeTest, ASilentControllerIsReadThreeTimes) {
  fake().files.clear();
  EXPECT_EQ(mTraffic.setBrightness(80), -11);
  EXPECT_EQ(fake().receiveTimeouts, (std::vector<int>{20000, 20000, 20000}));
  EXPECT_EQ(fake().pauses, (std::vector<int>{500, 500}));
  EXPECT_EQ(mTraffic.lastOutcome(), ToviOutcome::NoReply);
  Log expected = {"info setBrightness start", "info ToviTraffic::getSocket return toviSocket",
                  "info ToviTraffic::makeSendPacket makeSendPacketEx normal mode",
                  "info ToviTraffic::recv start",
                  "info ToviTraffic::recv create protocalParser normal mode"};
  for (int i = 0; i < 3; ++i) {
    expected.insert(expected.end(),
                    {"info ToviTraffic::recv recv start", "info ToviTraffic::recv recv erron = 11",
                     "info ToviTraffic::recv recv start, recv result = -1"});
  }
  expected.insert(expected.end(),
                  {"error ToviTraffic::recv recv failed count > MAX_FAIL_COUNT",
                   "error ToviTraffic::normalSet recvBuf is null, result = SEND_NOT_RECV_ERROR",
                   "info ToviTraffic::closeSocket close toviSocket"});
  EXPECT_EQ(fake().log(), expected);
  expectNothingLeft();
}

TEST_F(ExchangeTest, NoConnectionAndABrokenSendAreToldApart) {
  fake().sendFails = true;
  EXPECT_EQ(mTraffic.setBrightness(80), -11);
  EXPECT_EQ(mTraffic.lastOutcome(), ToviOutcome::SendFailed);
  EXPECT_EQ(mTraffic.getDeviceType(), nullptr);
  EXPECT_EQ(mTraffic.lastOutcome(), ToviOutcome::SendFailed);
  EXPECT_TRUE(fake().logged("error ToviTraffic::getData socket send error code:-1 req:1"));
  EXPECT_FALSE(fake().logged("error ToviTraffic::getData socket recv error"));
  fake().connectFails = true;
  EXPECT_EQ(mTraffic.setBrightness(80), -14);
  EXPECT_TRUE(fake().logged("error ToviTraffic::normalSet socket error"));
  EXPECT_EQ(mTraffic.getDeviceName(), nullptr);
  EXPECT_TRUE(fake().logged("error ToviTraffic::getData socket error"));
  EXPECT_EQ(mTraffic.lastOutcome(), ToviOutcome::NoConnection);
  expectNothingLeft();
}

TEST_F(ExchangeTest, ASettingWithoutAnswerReadsNothing) {
  mTraffic.sendHeartBeat();
  ASSERT_EQ(fake().sent.size(), 1u);
  EXPECT_EQ(toHex(fake().sent[0]), "AA FF FF 00 00 CC 54 9D");
  EXPECT_TRUE(fake().receiveSizes.empty());
  EXPECT_TRUE(fake().logged("error ToviTraffic::normalSet don't need wiat rsp"));
  EXPECT_EQ(mTraffic.lastOutcome(), ToviOutcome::Done);
  EXPECT_EQ(access::normalSet(mTraffic, 0x21, static_cast<char>(0xFF)), 1);
  expectNothingLeft();
}

TEST_F(ExchangeTest, AReplyMayComeInThreePiecesAndNotInFour) {
  const std::string frame = hex(kAccepted);
  for (const std::size_t size : {3u, 2u}) {
    ToviTraffic traffic("127.0.0.1", 5005);
    fake().pauses.clear();
    for (std::size_t i = 0; i < frame.size(); i += size) fake().arrive(frame.substr(i, size));
    EXPECT_EQ(traffic.setBrightness(80), size == 3 ? 1 : -11);
    EXPECT_EQ(fake().pauses.size(), 2u);
  }
}

TEST_F(ExchangeTest, AnOrdinaryReplyHasThreeBuffersOfRoom) {
  // 300 bytes are three reads of 100; one more is out of reach, and stays for nobody.
  struct {
    std::size_t text;
    const char* checksum;
    bool fits;
  } const cases[] = {{293, "EC 17", true}, {294, "1B 7C", false}};
  for (const auto& c : cases) {
    ToviTraffic traffic("127.0.0.1", 5005);
    fake().incoming.clear();
    fake().arrive(hex("AA FF FF D5") + std::string(c.text, 'x') +
                  hex(std::string("CC") + c.checksum));
    EXPECT_EQ(traffic.getSn().size(), c.fits ? c.text : 0) << c.text;
  }
}

TEST_F(ExchangeTest, AQueryHandsItsReplyOver) {
  fake().files.clear();
  fake().arrive(hex(kStatus80));
  const auto result = access::getData(mTraffic, 0x01, 0x02, 4096);
  ASSERT_NE(result, nullptr);
  EXPECT_EQ(result->getLen(), 19);
  EXPECT_EQ(toHex(fake().sent.at(0)), "AA FF FF 01 CC 7D 80");
  EXPECT_EQ(fake().receiveSizes, std::vector<std::size_t>{4096});
  const Log log = fake().log();
  EXPECT_EQ(log[2], "error ToviTraffic::getData socket send success :1");
  EXPECT_EQ(
      Log(log.end() - 3, log.end()),
      (Log{"info ToviTraffic::recv recv buf end", "info ToviTraffic::closeSocket close toviSocket",
           "info ToviTraffic::getData socket recv success. recv size = 19"}));
  expectNothingLeft();
}

TEST_F(ExchangeTest, AQueryToAControllerThatClosesIsNull) {
  fake().close();
  EXPECT_EQ(access::getData(mTraffic, 0x01, 0x02, 100), nullptr);
  EXPECT_EQ(fake().receiveSizes.size(), 3u);
  EXPECT_EQ(fake().pauses.size(), 2u);
  EXPECT_TRUE(fake().logged("info ToviTraffic::recv recv start, recv result = 0"));
  EXPECT_FALSE(fake().logged("info ToviTraffic::recv recv erron = 11"));
  EXPECT_TRUE(fake().logged("error ToviTraffic::getData socket recv error"));
  expectNothingLeft();
}

TEST_F(ExchangeTest, ASecondReplyInOneReadWaitsForItsQuestion) {
  fake().arrive(hex("AA FF FF 08"));
  fake().arrive(hex("01 CC 4E 42 AA FF FF 06 01 CC 55 52"));
  EXPECT_EQ(mTraffic.setBrightness(80), 1);
  EXPECT_EQ(fake().receiveSizes.size(), 2u);
  EXPECT_EQ(mTraffic.setPower(true), 1);
  EXPECT_EQ(fake().receiveSizes.size(), 2u) << "it is there already";
}

TEST_F(ExchangeTest, AStaleReplyIsMatchedUnlessTheHostDiscardsIt) {
  fake().arrive(hex(std::string(kAccepted) + kRefused));
  EXPECT_EQ(mTraffic.setBrightness(80), 1);
  EXPECT_EQ(mTraffic.setBrightness(80), -12);  // the late answer to an earlier question

  fake().arrive(hex(std::string(kAccepted) + kRefused));
  EXPECT_EQ(mTraffic.setBrightness(80), 1);
  mTraffic.discardKeptBytes();
  fake().arrive(hex(kAccepted));
  EXPECT_EQ(mTraffic.setBrightness(80), 1);
}

TEST_F(ExchangeTest, AServerBoundsItsWaitsItself) {
  struct {
    int own;
    int host;
    int expected;
  } const cases[] = {
      {20000, 0, 20000}, {20000, 300, 300}, {300, 5000, 300}, {0, 5000, 5000}, {0, 0, 0}};
  for (const auto& c : cases) {
    ToviTraffic traffic(std::uint64_t{42});
    traffic.setTimeout(c.own);
    fake().hostReceiveTimeout = c.host;
    fake().receiveTimeouts.clear();
    fake().arrive(hex(kAccepted));
    EXPECT_EQ(traffic.setBrightness(80), 1);
    EXPECT_EQ(fake().receiveTimeouts, std::vector<int>{c.expected}) << c.own << " " << c.host;
  }
  EXPECT_TRUE(fake().socketTimeouts.empty());
  EXPECT_EQ(fake().opened + fake().closed + fake().startUps + fake().cleanUps, 0);
}

TEST_F(ExchangeTest, EncipheredExchangesMatchBytesComputedElsewhere) {
  struct {
    void (ToviTraffic::*setKey)(const char*);
    const char* sent;
    const char* reply;
    const char* record;
  } const cases[] = {
      {&ToviTraffic::setDesKey, "AA FF FF 07 4A EF E1 D4 6C AF CD 23 CC 49 4B",
       "AA FF FF 08 DE EC BA 37 86 7B D1 42 CC A1 53",
       "info ToviTraffic::recv create protocalParser des mode, des key = 12345678"},
      {&ToviTraffic::setAesKey,
       "AA FF FF 07 48 62 2C E7 2E 5A 62 E3 F6 C6 30 F2 97 EC D2 84 CC 87 EE",
       "AA FF FF 08 4B EF F6 33 C5 AD 79 50 20 68 F1 0A 8D E0 65 7E CC 79 20",
       "info ToviTraffic::recv create protocalParser aes mode, des key = 12345678"},
      {&ToviTraffic::setSM4Key,
       "AA FF FF 07 70 DA 41 E5 59 85 4F D0 E1 92 72 9F 4C BF F7 F3 CC 66 EF",
       "AA FF FF 08 36 11 51 65 43 4C D6 0E E1 2D 06 4B C6 A6 9D 38 CC ED 4D",
       "info ToviTraffic::recv create protocalParser sm4 mode, sm4 key = 12345678"},
  };
  for (const auto& c : cases) {
    ToviTraffic traffic("127.0.0.1", 5005);
    (traffic.*c.setKey)("12345678");
    fake().sent.clear();
    fake().arrive(hex(c.reply));
    EXPECT_EQ(traffic.setBrightness(80), 1) << c.record;
    EXPECT_EQ(toHex(fake().sent.at(0)), c.sent);
    EXPECT_TRUE(fake().logged(c.record)) << c.record;

    // The question whether traffic is enciphered, and its answer, are plain with every key.
    EXPECT_EQ(toHex(access::makeSendPacket(traffic, 0x010C, "")), "AA FF FF EF 0C 01 CC 5E C1");
    fake().arrive(hex("AA FF FF EF 0C 01 01 CC 88 CD"));
    const auto answer = access::getData(traffic, 0x010C, 0x010C, 100);
    ASSERT_NE(answer, nullptr);
    EXPECT_TRUE(answer->isSetSuccess());
    // So is the secret handshake.
    EXPECT_EQ(toHex(access::makeSendPacket(traffic, 0x70, "\x01")), "AA FF FF 70 01 CC 54 04");
  }
}

TEST_F(ExchangeTest, ExtendedCodesLeadThePayload) {
  EXPECT_EQ(toHex(access::makeSendPacket(mTraffic, 0x0123, "\x01\x02")),
            "AA FF FF EF 23 01 01 02 CC 3A 5E");
  EXPECT_EQ(toHex(access::makeSendPacket(mTraffic, static_cast<short>(0xFFD5), "")),
            "AA FF FF D5 CC 26 B8");
  EXPECT_EQ(toHex(access::makeSendPacket(mTraffic, 0x00CC, "\x01")), "AA FF FF CC 01 CC B5 2B");
  mTraffic.setDesKey("12345678");
  EXPECT_EQ(toHex(access::makeSendPacket(mTraffic, 0x0115, "")),
            "AA FF FF EF 3E D9 20 6D DE 08 39 54 CC 0C 8A");
}

TEST_F(ExchangeTest, KeysMayBeHiddenFromTheLog) {
  tovi_set_log_redaction(true);
  for (const auto setKey :
       {&ToviTraffic::setDesKey, &ToviTraffic::setAesKey, &ToviTraffic::setSM4Key}) {
    ToviTraffic traffic("127.0.0.1", 5005);
    fake().files.clear();
    (traffic.*setKey)("12345678");
    fake().arrive(hex(kAccepted));
    traffic.setBrightness(80);
    int hidden = 0;
    for (const std::string& record : fake().log()) {
      EXPECT_EQ(record.find("12345678"), std::string::npos) << record;
      if (record.ends_with(" key = ********")) ++hidden;
    }
    EXPECT_EQ(hidden, setKey == &ToviTraffic::setDesKey ? 3 : 2);
  }
}

}  // namespace
