// SPDX-License-Identifier: MIT
// Exchanges over real sockets on loopback.
#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <memory>
#include <thread>
#include <vector>

#include <tovisdk/tovisdk.h>

#include "platform/listener.h"
#include "simulator/server.h"
#include "tests/support/heap_probe.h"
#include "tests/support/hex.h"
#include "tests/support/process_probe.h"

namespace {

using tovi::platform::Socket;
using tovi::sim::Options;
using tovi::sim::Simulator;
using tovi::test::hex;
namespace platform = tovi::platform;

constexpr char kAccepted[] = "AA FF FF 08 01 CC 4E 42";
constexpr int kTimeoutMs = 2000;

// The next connection, however long it takes to come.
Socket acceptNext(Socket listener) {
  platform::Watched waiting{listener, false};
  platform::waitReadable({&waiting, 1}, -1);
  return platform::acceptOne(listener);
}

// A peer that takes one connection and does with it as it is told.
class Peer {
 public:
  explicit Peer(std::function<void(Socket)> serve)
      : mListener(platform::listenOn("127.0.0.1", 0)), mThread([this, serve] {
          const Socket socket = acceptNext(mListener);
          serve(socket);
          platform::closeSocket(socket);
        }) {}
  ~Peer() {
    mThread.join();
    platform::closeSocket(mListener);
  }
  Peer(const Peer&) = delete;
  Peer& operator=(const Peer&) = delete;

  ToviTraffic traffic() const { return ToviTraffic("127.0.0.1", platform::localPort(mListener)); }

 private:
  Socket mListener;
  std::thread mThread;
};

void takeRequest(Socket socket) {
  char request[9];
  platform::receiveSome(socket, request, kTimeoutMs);
}

ToviTraffic clientOf(const Simulator& simulator) {
  return ToviTraffic("127.0.0.1", simulator.port());
}

TEST(RealExchange, SetThenGetAgreesPlainAndWithEachCipher) {
  struct {
    const char* key;
    void (ToviTraffic::*setKey)(const char*);
  } const cases[] = {{"", nullptr},
                     {"des:k3y!4567", &ToviTraffic::setDesKey},
                     {"aes:k3y!4567", &ToviTraffic::setAesKey},
                     {"sm4:k3y!4567", &ToviTraffic::setSM4Key}};
  for (const auto& c : cases) {
    Options options;
    if (*c.key != '\0') options.key = *tovi::sim::parseKey(c.key);
    Simulator simulator(options);
    ASSERT_TRUE(simulator.start()) << simulator.error();
    ToviTraffic traffic = clientOf(simulator);
    traffic.setTimeout(kTimeoutMs);
    if (c.setKey != nullptr) (traffic.*c.setKey)("k3y!4567");

    EXPECT_EQ(traffic.setPower(false), 1) << c.key;
    EXPECT_EQ(traffic.setBrightness(80), 1) << c.key;
    EXPECT_EQ(traffic.setDeviceVolume(200), 1);
    EXPECT_EQ(static_cast<unsigned char>(traffic.getVolumeValue()), 200);
    EXPECT_EQ(traffic.setDeviceName("限速 80 ä"), 1);
    char* name = traffic.getDeviceName();
    EXPECT_STREQ(name, "限速 80 ä") << c.key;
    deleteArry(&name);
    DeviceType* status = traffic.getDeviceType();
    ASSERT_NE(status, nullptr) << c.key;
    EXPECT_EQ(status->getScreenBrightness(), 80);
    deleteObj(&status);
    EXPECT_EQ(simulator.state().brightness, 80);
    EXPECT_FALSE(simulator.state().screenOpen);
  }
}

TEST(RealExchange, AWrongKeyIsNoReply) {
  Options options;
  options.key = *tovi::sim::parseKey("des:right-ky");
  Simulator simulator(options);
  ASSERT_TRUE(simulator.start());
  ToviTraffic traffic = clientOf(simulator);
  traffic.setTimeout(50);
  traffic.setDesKey("wrong-ky");
  EXPECT_NE(traffic.setBrightness(33), 1);
  EXPECT_NE(simulator.state().brightness, 33);
}

TEST(RealExchange, NoListenerIsNoConnection) {
  const Socket closed = platform::listenOn("127.0.0.1", 0);
  const std::uint16_t port = platform::localPort(closed);
  platform::closeSocket(closed);
  for (const char* address : {"127.0.0.1", "", "256.1.1.1", "localhost"}) {
    ToviTraffic traffic(address, port);
    EXPECT_EQ(traffic.setPower(true), -14) << address;
    EXPECT_EQ(traffic.lastOutcome(), ToviOutcome::NoConnection);
  }
  EXPECT_EQ(ToviTraffic("127.0.0.1", 0).setPower(true), -14);
}

// What a peer may do to a host, and what the host hears of it. None of it may end the host.
TEST(RealExchange, BrokenPeersAreNoReply) {
  struct {
    const char* what;
    void (*serve)(Socket);
  } const cases[] = {
      {"closes at once", [](Socket) {}},
      {"closes after the request", takeRequest},
      {"resets after the request",
       [](Socket socket) {
         takeRequest(socket);
         platform::resetOnClose(socket);
       }},
      {"closes inside the reply",
       [](Socket socket) {
         takeRequest(socket);
         platform::sendAll(socket, hex("AA FF FF 08 01"), kTimeoutMs);
       }},
      {"answers with rubbish and closes",
       [](Socket socket) {
         takeRequest(socket);
         platform::sendAll(socket, std::string(5000, '\xAA'), kTimeoutMs);
       }},
  };
  for (const auto& c : cases) {
    const Peer peer(c.serve);
    ToviTraffic traffic = peer.traffic();
    traffic.setTimeout(kTimeoutMs);
    EXPECT_EQ(traffic.setBrightness(80), -11) << c.what;
  }
}

// How far the host gets before the reset reaches it is the scheduler's choice.
TEST(RealExchange, APeerThatResetsAtOnceIsNoSuccess) {
  const Peer peer(platform::resetOnClose);
  ToviTraffic traffic = peer.traffic();
  traffic.setTimeout(kTimeoutMs);
  const int result = traffic.setBrightness(80);
  EXPECT_TRUE(result == -11 || result == -14) << result;
}

TEST(RealExchange, ASilentPeerCostsThreeTimeoutsAndTwoPauses) {
  const Peer peer([](Socket socket) {
    char byte;
    // Until the host gives up.
    while (platform::receiveSome(socket, {&byte, 1}, 10000) > 0) {
    }
  });
  ToviTraffic traffic = peer.traffic();
  traffic.setTimeout(40);
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(traffic.setBrightness(80), -11);
  EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(3 * 40 + 2 * 500));
}

TEST(RealExchange, AServerServesOnTheSocketThatDialledIn) {
  const Socket listener = platform::listenOn("127.0.0.1", 0);
  Options options;
  options.dial = tovi::sim::Endpoint{"127.0.0.1", platform::localPort(listener)};
  Simulator simulator(options);
  ASSERT_TRUE(simulator.start()) << simulator.error();
  const Socket socket = acceptNext(listener);
  {
    ToviTraffic traffic(socket);
    traffic.setTimeout(kTimeoutMs);
    for (const int level : {1, 2, 3}) EXPECT_EQ(traffic.setBrightness(level), 1);
    EXPECT_EQ(simulator.state().brightness, 3);
  }
  // The object is gone; the socket is still the host's.
  EXPECT_EQ(platform::sendAll(socket, hex("AA FF FF 07 02 50 CC 38 4A"), kTimeoutMs), 9);
  std::string reply(8, '\0');
  EXPECT_EQ(platform::receiveSome(socket, reply, kTimeoutMs), 8);
  EXPECT_EQ(reply, hex(kAccepted));
  platform::closeSocket(socket);
  platform::closeSocket(listener);
}

void exchangeOnce(ToviTraffic& traffic, int level) {
  ASSERT_EQ(traffic.setBrightness(level), 1);
  DeviceType* status = traffic.getDeviceType();
  ASSERT_NE(status, nullptr);
  EXPECT_EQ(status->getScreenBrightness(), level);
  deleteObj(&status);
}

TEST(RealExchange, AThousandExchangesLeaveNothingBehind) {
  Simulator simulator{Options{}};
  ASSERT_TRUE(simulator.start());
  ToviTraffic traffic = clientOf(simulator);
  traffic.setTimeout(kTimeoutMs);
  traffic.setAesKey(nullptr);
  exchangeOnce(traffic, 1);  // what is made once is made now

  const std::size_t descriptors = tovi::test::openDescriptors();
  const std::size_t threads = tovi::test::threads();
  const long blocks = tovi::test::heapBlocksOfThisThread();
  for (int i = 0; i < 500; ++i) exchangeOnce(traffic, i % 256);
  EXPECT_EQ(tovi::test::heapBlocksOfThisThread(), blocks);
  EXPECT_EQ(tovi::test::threads(), threads);
  simulator.stop();  // its last connection may still be closing
  EXPECT_LE(tovi::test::openDescriptors(), descriptors);
}

TEST(RealExchange, ObjectsOnDistinctThreadsAreIndependent) {
  Simulator first{Options{}};
  Simulator second{Options{}};
  ASSERT_TRUE(first.start() && second.start());
  std::vector<std::thread> hosts;
  for (const Simulator* simulator : {&first, &second}) {
    hosts.emplace_back([simulator] {
      ToviTraffic traffic = clientOf(*simulator);
      traffic.setTimeout(kTimeoutMs);
      for (int i = 0; i < 100; ++i) exchangeOnce(traffic, i);
    });
  }
  for (std::thread& host : hosts) host.join();
}

}  // namespace
