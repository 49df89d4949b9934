// SPDX-License-Identifier: MIT
#include "tests/support/fake_platform_test.h"
#include "tests/support/test_access.h"

namespace {

using tovi::platform::StartUp;
using tovi::test::FakePlatformTest;
namespace access = tovi::test::access;
using Log = std::vector<std::string>;

constexpr std::uint64_t kInvalid = ~std::uint64_t{0};

class Connection : public FakePlatformTest {};

TEST_F(Connection, AClientConnectsAndClosesPerExchange) {
  {
    ToviTraffic traffic("192.168.1.10", 5005);
    const std::uint64_t socket = access::getSocket(traffic);
    EXPECT_NE(socket, 0u);
    access::closeSocket(traffic, socket);
    access::closeSocket(traffic, 0);
  }
  EXPECT_EQ(fake().connections, std::vector<std::string>{"192.168.1.10:5005"});
  EXPECT_EQ(fake().socketTimeouts, std::vector<int>{20000});
  EXPECT_EQ(fake().closed, 1);
  EXPECT_EQ(fake().startUps, 1);
  EXPECT_EQ(fake().cleanUps, 1);
  EXPECT_EQ(fake().log(),
            (Log{"info ToviTraffic::ToviTraffic init client mode start",
                 "info ToviTraffic::ToviTraffic init client mode end",
                 "info ToviTraffic::getSocket return toviSocket",
                 "info ToviTraffic::closeSocket close toviSocket",
                 "info ToviTraffic::~ToviTraffic start", "info ToviTraffic::~ToviTraffic end"}));
}

TEST_F(Connection, EveryFailureIsLoggedAndCleanedUp) {
  struct {
    void (*script)(tovi::test::FakePlatform&);
    const char* record;
    int cleanUps;
    int closed;
  } const cases[] = {
      {[](auto& fake) { fake.startUp = StartUp::Failed; },
       "error ToviTraffic::getSocket WSAStartup error", 0, 0},
      {[](auto& fake) { fake.startUp = StartUp::WrongVersion; },
       "error ToviTraffic::getSocket WSA version error", 0, 0},
      {[](auto& fake) { fake.openFails = true; },
       "error ToviTraffic::getSocket create socket error", 1, 0},
      {[](auto& fake) { fake.connectFails = true; },
       "error ToviTraffic::getSocket connect socket error", 1, 1},
  };
  for (const auto& c : cases) {
    fake() = tovi::test::FakePlatform{};
    fake().folders.insert("/host/bin/log/");
    c.script(fake());
    ToviTraffic traffic("127.0.0.1", 5005);
    EXPECT_EQ(access::getSocket(traffic), 0u);
    EXPECT_TRUE(fake().logged(c.record)) << c.record;
    EXPECT_EQ(fake().cleanUps, c.cleanUps) << c.record;
    EXPECT_EQ(fake().closed, c.closed) << c.record;
  }
}

TEST_F(Connection, AServerKeepsItsSocketOpen) {
  {
    ToviTraffic traffic(std::uint64_t{42});
    EXPECT_EQ(access::getSocket(traffic), 42u);
    access::closeSocket(traffic, 42);
    EXPECT_EQ(access::getSocket(traffic), 42u);
  }
  EXPECT_EQ(fake().opened + fake().closed + fake().startUps + fake().cleanUps, 0);
  EXPECT_EQ(fake().log(),
            (Log{"info ToviTraffic::ToviTraffic init server mode start",
                 "info ToviTraffic::ToviTraffic init server mode start",
                 "info ToviTraffic::getSocket return mSocket",
                 "info ToviTraffic::getSocket return mSocket",
                 "info ToviTraffic::~ToviTraffic start", "info ToviTraffic::~ToviTraffic end"}));
}

TEST_F(Connection, TheSocketOfAServerMayBeChangedAndInvalid) {
  ToviTraffic traffic("127.0.0.1", 5005);
  access::setSocket(traffic, 9);
  EXPECT_EQ(access::getSocket(traffic), 9u);
  access::setSocket(traffic, kInvalid);
  EXPECT_EQ(access::getSocket(traffic), 0u);
  EXPECT_TRUE(fake().logged("error ToviTraffic::getSocket mSocket is INVALID_SOCKET, return null"));
  EXPECT_EQ(traffic.setPower(true), -14);
}

TEST_F(Connection, OnlyAddressesThatFitAreTaken) {
  ToviTraffic fits("1234567890123456789", 1);
  access::getSocket(fits);
  EXPECT_EQ(fake().connections.back(), "1234567890123456789:1");
  EXPECT_FALSE(fake().logged("error ToviTraffic::ToviTraffic address refused"));

  for (const char* refused : {"12345678901234567890", static_cast<const char*>(nullptr)}) {
    fake().files.clear();
    ToviTraffic traffic(refused, 1);
    EXPECT_TRUE(fake().logged("error ToviTraffic::ToviTraffic address refused"));
    access::getSocket(traffic);
    EXPECT_EQ(fake().connections.back(), ":1");  // the empty text, which no real platform accepts
  }
}

TEST_F(Connection, TheTimeoutHoldsForAllThatMayWait) {
  ToviTraffic traffic("127.0.0.1", 5005);
  for (const int ms : {5000, 0, -1}) {
    traffic.setTimeout(ms);
    traffic.sendHeartBeat();
  }
  const std::vector<int> timeouts{5000, 0, 0};
  EXPECT_EQ(fake().socketTimeouts, timeouts);
  EXPECT_EQ(fake().connectTimeouts, timeouts);
  EXPECT_EQ(fake().sendTimeouts, timeouts);
  traffic.setTimeout(70);
  traffic.setPower(true);
  EXPECT_EQ(fake().receiveTimeouts, (std::vector<int>{70, 70, 70}));
}

}  // namespace
