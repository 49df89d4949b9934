// SPDX-License-Identifier: MIT
#include "simulator/server.h"

#include <gtest/gtest.h>

#include <list>
#include <tuple>

#include "tests/simulator/host.h"
#include "tests/simulator/literal.h"

namespace tovi::sim {
namespace {

using std::chrono::milliseconds;

// Computed with openssl and a separate checksum.
TEST(Simulator, AnswersByteForByte) {
  for (const auto& [key, request, reply] :
       {std::tuple{"des:12345678", "AA FF FF 07 4A EF E1 D4 6C AF CD 23 CC 49 4B",
                   "AA FF FF 08 DE EC BA 37 86 7B D1 42 CC A1 53"},
        {"aes:12345678", "AA FF FF 07 48 62 2C E7 2E 5A 62 E3 F6 C6 30 F2 97 EC D2 84 CC 87 EE",
         "AA FF FF 08 4B EF F6 33 C5 AD 79 50 20 68 F1 0A 8D E0 65 7E CC 79 20"},
        {"sm4:12345678", "AA FF FF 07 70 DA 41 E5 59 85 4F D0 E1 92 72 9F 4C BF F7 F3 CC 66 EF",
         "AA FF FF 08 36 11 51 65 43 4C D6 0E E1 2D 06 4B C6 A6 9D 38 CC ED 4D"}}) {
    SCOPED_TRACE(key);
    Running simulator(keyed(key));
    Host(simulator).ask(request, reply);
  }
}

TEST(Simulator, KeepsStateAcrossConnectionsAndBytesWithinThem) {
  Running simulator;
  std::list<Host> hosts;
  for (int i = 0; i < 50; ++i) hosts.emplace_back(simulator);

  // Every host is inside a request of its own while the others speak.
  for (Host& host : hosts) host.send("AA FF FF 45 07");
  for (Host& host : hosts) host.ask("CC 97 EF", "AA FF FF 46 01 CC 23 54");
  Host(simulator).ask(kGetVolume, "AA FF FF A9 07 CC 95 43");
}

TEST(Simulator, SaysWhyThereIsNoAnswer) {
  struct Case {
    std::string_view key;
    std::string_view request;
    std::string_view line;
  };
  constexpr Case kCases[] = {
      {"none", "AA FF FF 07 02 50 CC 38 4B",
       "dropped: wrong checksum   AA FF FF 07 02 50 CC 38 4B"},
      {"none", "AA FF FF 08 01 EE 00 CC 83 07", "dropped: bad escape"},
      {"none", "47 45 54 20 2F", "dropped: bytes outside any frame   47 45 54 20 2F"},
      {"none", "AA FF FF EF 14 81 CC C5 0E", "unknown command  0x8114, 0 bytes  -> no reply"},
      {"none", "AA FF FF EF CC F4 F3", "does not hold the command's 16-bit code"},
      {"aes:12345678", kSetBrightness, "does not decipher with our key"},
      {"des:87654321", "AA FF FF 07 4A EF E1 D4 6C AF CD 23 CC 49 4B", "does not decipher"},
  };
  for (const Case& one : kCases) {
    Lines lines;
    Options options = keyed(one.key);
    options.onLine = lines.sink();
    Running simulator(std::move(options));
    Host host(simulator);
    host.send(one.request);
    EXPECT_TRUE(lines.waitFor(one.line)) << one.line;
    host.send("AA FF FF EF 0C 01 CC 5E C1");  // is heard all the same
    host.receive(10);
    EXPECT_TRUE(lines.waitFor("getIsSecret"));
  }
}

TEST(Simulator, SurvivesPeersThatVanish) {
  Lines lines;
  Options options;
  options.onLine = lines.sink();
  Running simulator(std::move(options));
  Host(simulator).send("AA FF FF 07 02");
  EXPECT_TRUE(lines.waitFor("hung up inside a frame, after 5 bytes"));
  for (int i = 0; i < 20; ++i) {
    Host host(simulator);
    host.send(kSetBrightness);
    host.reset();
  }
  Host(simulator).ask(kGetVolume, kVolume50);
}

TEST(Simulator, LetsConnectionsWaitThatAreTooMany) {
  Options options;
  options.maxConnections = 1;
  Running simulator(std::move(options));
  auto first = std::make_unique<Host>(simulator);
  first->ask(kGetVolume, kVolume50);
  Host second(simulator);
  second.send(kGetVolume);
  // Each answer is a turn in which the second could have been taken, or heard.
  for (int i = 0; i < 3; ++i) first->ask(kGetVolume, kVolume50);
  EXPECT_EQ(simulator.exchanges(), 4U);
  first.reset();
  second.expect(kVolume50);
}

TEST(Simulator, StopsAtOnceAndAgain) {
  // With a host inside a frame, and a reply that is not due for minutes.
  Running simulator(faulty({"late-reply=600000"}));
  EXPECT_FALSE(simulator.start());
  Host idle(simulator);
  idle.send("AA FF FF 07");
  Host waiting(simulator);
  waiting.send(kGetVolume);
  ASSERT_TRUE(simulator.waitForExchanges(1, kLong));
  simulator.stop();
  EXPECT_EQ(waiting.end(), End::Close);
  EXPECT_EQ(idle.end(), End::Close);
  EXPECT_TRUE(simulator.waitUntilFinished(milliseconds(0)));
  simulator.stop();
  Simulator neverStarted({});
  neverStarted.stop();
}

TEST(Simulator, EndsAtItsExchangeLimitAfterTheReply) {
  Options options = faulty({"late-reply=20"});
  options.exchangeLimit = 2;
  Running simulator(std::move(options));
  Host host(simulator);
  host.ask(kGetVolume, kVolume50);
  host.ask("AA FF FF 07 02 50 CC 38 4A AA FF FF A9 CC 42 E1", kAccepted);
  EXPECT_EQ(host.end(), End::Close);
  EXPECT_TRUE(simulator.waitUntilFinished(kLong));
  EXPECT_EQ(simulator.exchanges(), 2U);
}

TEST(Simulator, DialsAWaitingHost) {
  const platform::Socket listener = platform::listenOn("127.0.0.1", 0);
  Options options;
  options.dial = {"localhost", platform::localPort(listener)};
  Running simulator(options);
  {
    platform::Watched watched{listener, false};
    ASSERT_TRUE(platform::waitReadable({&watched, 1}, kLongMs));
    Host host(platform::acceptOne(listener));
    host.ask(kGetVolume, kVolume50);
  }
  EXPECT_TRUE(simulator.waitUntilFinished(kLong));

  options.dial->host = "127.0.0.2";  // where nobody listens, since the port is ours
  EXPECT_TRUE(whyNot(options).starts_with("cannot reach a host at 127.0.0.2:"));
  platform::closeSocket(listener);
}

TEST(Simulator, ListensAtANameAndNowhereElse) {
  Options options;
  options.listen.host = "localhost";
  Running simulator(options);
  Host(simulator).ask(kGetVolume, kVolume50);

  options.listen.port = simulator.port();
  EXPECT_TRUE(whyNot(options).starts_with(
      "cannot listen on localhost:" + std::to_string(simulator.port()) + ": "));
  options.listen = {"x.invalid", 5005};
  EXPECT_EQ(whyNot(options), "cannot listen on x.invalid:5005: no such host");
  options.dial = {"x.invalid", 5006};
  EXPECT_EQ(whyNot(options), "cannot reach a host at x.invalid:5006: no such host");
}

}  // namespace
}  // namespace tovi::sim
