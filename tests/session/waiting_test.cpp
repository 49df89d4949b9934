// SPDX-License-Identifier: MIT
// Waiting until the time-out, and connections that are kept, on a scripted platform.
#include "tests/support/fake_platform_test.h"
#include "tests/support/hex.h"
#include "tests/support/test_access.h"
#include "tests/support/wire.h"

namespace {

using tovi::test::FakePlatformTest;
using tovi::test::frame;
using tovi::test::hex;
namespace access = tovi::test::access;

constexpr char kAccepted[] = "AA FF FF 08 01 CC 4E 42";
constexpr char kRefused[] = "AA FF FF 08 00 CC 96 5B";
constexpr std::uint64_t kHostSocket = 9;

class WaitingTest : public FakePlatformTest {
 protected:
  static void arriveInBytes(const std::string& bytes) {
    for (const char byte : bytes) fake().arrive(std::string(1, byte));
  }
};

using Times = std::vector<int>;

class UntilTimeout : public WaitingTest {
 protected:
  UntilTimeout() {
    mTraffic.setWaiting(ToviWaiting::UntilTimeout);
    mTraffic.setTimeout(1000);
    fake().msPerRead = 100;
  }

  ToviTraffic mTraffic{"127.0.0.1", 5005};
};

TEST_F(UntilTimeout, AReplyMayComeInAnyPieces) {
  fake().msPerRead = 0;
  arriveInBytes(frame("7F 01 41 42"));
  arriveInBytes(hex("00 11 AA FF FF 10 CC 34 0C") + hex(kAccepted));  // behind what is not wanted
  char* name = mTraffic.getDeviceName();
  EXPECT_STREQ(name, "AB");
  deleteArry(&name);
  EXPECT_EQ(mTraffic.setBrightness(80), 1);
  EXPECT_TRUE(fake().pauses.empty());
}

TEST_F(UntilTimeout, SilenceAndTheEndAreMetOnce) {
  for (const bool closed : {false, true}) {
    fake().receiveTimeouts.clear();
    arriveInBytes(hex("AA FF FF 08"));
    if (closed) fake().close();
    EXPECT_EQ(mTraffic.setBrightness(80), -11);
    EXPECT_EQ(mTraffic.lastOutcome(), ToviOutcome::NoReply);
    EXPECT_EQ(fake().receiveTimeouts, (Times{1000, 900, 800, 700, 600}));
    EXPECT_TRUE(fake().pauses.empty());
  }
  EXPECT_EQ(fake().sendTimeouts, (Times{1000, 1000}));
}

TEST_F(UntilTimeout, NoiseTakesNoLonger) {
  arriveInBytes(std::string(20, '\x11') + hex(kAccepted));
  EXPECT_EQ(mTraffic.setBrightness(80), -11);
  EXPECT_EQ(fake().receiveTimeouts.size(), 10u);
}

TEST_F(UntilTimeout, WithoutATimeoutHasNoLimit) {
  mTraffic.setTimeout(0);
  arriveInBytes(hex(kAccepted));
  EXPECT_EQ(mTraffic.setBrightness(80), 1);
  EXPECT_EQ(fake().sendTimeouts, Times{0});
  EXPECT_EQ(fake().receiveTimeouts, Times(8, 0));
}

TEST_F(UntilTimeout, ForgetsEarlierRepliesWhereTheConnectionIsItsOwn) {
  struct {
    bool server;
    int second;
  } const cases[] = {{false, 70}, {true, 60}};
  for (const auto& c : cases) {
    ToviTraffic client("127.0.0.1", 5005);
    ToviTraffic server(kHostSocket);
    ToviTraffic& traffic = c.server ? server : client;
    traffic.setWaiting(ToviWaiting::UntilTimeout);
    fake().arrive(frame("A9 32") + frame("A9 3C"));
    EXPECT_EQ(traffic.getVolumeValue(), 50);
    fake().arrive(frame("A9 46"));
    EXPECT_EQ(traffic.getVolumeValue(), c.second);
  }
}

TEST_F(UntilTimeout, AShorterTimeoutOfTheHostsSocketHolds) {
  ToviTraffic traffic(kHostSocket);
  traffic.setWaiting(ToviWaiting::UntilTimeout);
  fake().hostReceiveTimeout = 300;
  arriveInBytes(hex(kAccepted));
  EXPECT_EQ(traffic.setBrightness(80), -11);
  EXPECT_EQ(fake().receiveTimeouts, (Times{300, 200, 100}));
}

TEST_F(UntilTimeout, EachStepOfATransferHasItsOwnTime) {
  for (int i = 0; i < 20; ++i) fake().arrive(frame("AB 02"));
  fake().arrive(frame("AB 01"));
  EXPECT_TRUE(mTraffic.downloadFiles("[]"));
  EXPECT_EQ(fake().receiveTimeouts, Times(21, 1000));
}

class KeptConnection : public WaitingTest {
 protected:
  KeptConnection() { mTraffic.setKeepConnection(true); }

  void setAndExpect(const char* reply, int result) {
    fake().arrive(hex(reply));
    EXPECT_EQ(mTraffic.setBrightness(80), result);
  }
  // How many connections there were, and how many of them are still open.
  void expectConnections(int opened, int open) {
    EXPECT_EQ(fake().opened, opened);
    EXPECT_EQ(fake().opened - fake().closed, open);
    EXPECT_EQ(fake().startUps - fake().cleanUps, open);
  }

  ToviTraffic mTraffic{"127.0.0.1", 5005};
};

TEST_F(KeptConnection, ServesOperationsOfEveryShape) {
  {
    ToviTraffic traffic("127.0.0.1", 5005);
    traffic.setKeepConnection(true);
    const auto next = [this](std::string_view reply) {
      expectConnections(fake().sent.empty() ? 0 : 1, fake().sent.empty() ? 0 : 1);
      fake().arrive(std::string(reply));
    };
    next(hex(kAccepted));
    EXPECT_EQ(traffic.setBrightness(80), 1);
    next(hex(kRefused));  // a whole answer all the same
    EXPECT_EQ(traffic.setBrightness(80), -12);
    next(frame("A9 32"));
    EXPECT_EQ(traffic.getVolumeValue(), 50);
    next(frame("AB 02") + frame("AB 01"));
    EXPECT_TRUE(traffic.downloadFiles("[]"));
    EXPECT_EQ(fake().sent.size(), 4u);
    expectConnections(1, 1);
  }
  expectConnections(1, 0);
}

TEST_F(KeptConnection, IsNotKeptBehindWhatFailed) {
  setAndExpect(kAccepted, 1);
  EXPECT_EQ(mTraffic.setBrightness(80), -11);
  EXPECT_EQ(fake().sent.size(), 2u) << "nothing is sent twice";
  expectConnections(1, 0);
  EXPECT_EQ(mTraffic.getVolumeValue(), static_cast<char>(0xFF));
  expectConnections(2, 0);
  fake().arrive(frame("AB 03"));  // the controller is in the middle of something
  EXPECT_FALSE(mTraffic.downloadFiles("[]"));
  expectConnections(3, 0);
}

TEST_F(KeptConnection, IsReplacedWhenItIsNotQuiet) {
  setAndExpect(kAccepted, 1);
  fake().quiet = false;
  setAndExpect(kAccepted, 1);
  expectConnections(2, 1);
}

TEST_F(KeptConnection, EndsWithTheWish) {
  setAndExpect(kAccepted, 1);
  mTraffic.setKeepConnection(false);
  expectConnections(1, 0);
  setAndExpect(kAccepted, 1);
  expectConnections(2, 0);

  mTraffic.setKeepConnection(true);
  setAndExpect(kAccepted, 1);
  access::setSocket(mTraffic, kHostSocket);
  expectConnections(3, 0);
  setAndExpect(kAccepted, 1);
  expectConnections(3, 0);
}

}  // namespace
