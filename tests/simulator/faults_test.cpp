// SPDX-License-Identifier: MIT
// Misbehaviour on request.
#include <gtest/gtest.h>

#include "tests/simulator/host.h"

namespace tovi::sim {
namespace {

struct Misbehaviour {
  std::string_view fault;
  std::string_view key;
  std::string_view bytes;  // in answer to setBrightness
  End end = End::Stay;
};

constexpr std::string_view kSetBrightnessSm4 =
    "AA FF FF 07 70 DA 41 E5 59 85 4F D0 E1 92 72 9F 4C BF F7 F3 CC 66 EF";

constexpr Misbehaviour kMisbehaviours[] = {
    {"pieces=3", "none", kAccepted},
    {"two-replies", "none", "AA FF FF 08 01 CC 4E 42 AA FF FF 08 01 CC 4E 42"},
    {"wrong-checksum", "none", "AA FF FF 08 01 CC B1 BD"},
    {"bad-escape", "none", "AA FF FF 08 01 EE 00 CC 83 07"},
    {"wrong-command", "none", "AA FF FF 48 01 CC 38 44"},
    {"garbage", "none", "00 11 22 33 44 55 66 77 AA FF FF 08 01 CC 4E 42"},
    {"refuse", "none", "AA FF FF 08 00 CC 96 5B"},
    {"wrong-key", "none", "AA FF FF 08 94 11 A4 92 FE 0F 37 C0 CC 67 08"},
    {"wrong-key", "sm4:12345678",
     "AA FF FF 08 E8 C7 D7 68 9B 01 08 6A 31 3A E7 AF CA E2 1D 30 CC 6D CA"},
    {"close-before", "none", "", End::Close},
    {"close-inside", "none", "AA FF FF 08", End::Close},
    {"close-after", "none", kAccepted, End::Close},
};

TEST(SimFaults, ShowOnTheWireForAsLongAsTold) {
  for (const Misbehaviour& one : kMisbehaviours) {
    SCOPED_TRACE(one.fault);
    const bool plain = one.key == "none";
    Running simulator(faulty({std::string(one.fault) + ":1"}, one.key));
    Host host(simulator);
    host.ask(plain ? kSetBrightness : kSetBrightnessSm4, one.bytes);
    const bool stays = one.end == End::Stay;
    if (!stays) {
      EXPECT_EQ(host.end(), one.end);
    }

    Host another(simulator);
    Host& next = stays ? host : another;
    next.ask("AA FF FF EF 0C 01 CC 5E C1",
             plain ? "AA FF FF EF 0C 01 00 CC 50 D4" : "AA FF FF EF 0C 01 01 CC 88 CD");
  }
}

TEST(SimFaults, ResetTheConnection) {
  Running simulator(faulty({"reset"}));
  Host host(simulator);
  host.send(kSetBrightness);
  EXPECT_EQ(host.end(), End::Reset);
}

TEST(SimFaults, LeaveWhatFollowsUnheard) {
  // Nothing is heard from a peer that has been hung up on...
  Running closing(faulty({"close-before"}));
  Host chatty(closing);
  chatty.send("AA FF FF A9 CC 42 E1 AA FF FF 45 07 CC 97 EF");
  EXPECT_EQ(chatty.end(), End::Close);
  EXPECT_EQ(closing.exchanges(), 1U);

  // ... nor, until it has its answer, from one that asks again meanwhile.
  Running late(faulty({"late-reply=600000:1"}));
  Host impatient(late);
  impatient.send(kGetVolume);
  ASSERT_TRUE(late.waitForExchanges(1, kLong));
  impatient.send(kGetVolume);
  Host other(late);
  other.ask(kGetVolume, kVolume50);
  EXPECT_EQ(late.exchanges(), 2U);
}

TEST(SimFaults, TakeTurnsAndSpareWhatHasNoReply) {
  Running simulator(faulty({"no-reply:2", "refuse"}));
  Host host(simulator);
  host.ask(
      "AA FF FF A9 CC 42 E1 AA FF FF 00 00 CC 54 9D AA FF FF 45 07 CC 97 EF "
      "AA FF FF 07 02 50 CC 38 4A AA FF FF EF 0C 01 CC 5E C1",
      "AA FF FF 08 00 CC 96 5B AA FF FF EF 0C 01 00 CC 50 D4");
  EXPECT_EQ(simulator.state().volume, 7);  // done, though not answered
  EXPECT_EQ(simulator.state().heartBeats, 1U);
}

TEST(SimFaults, PutTheReplyApart) {
  const std::vector<Step> pieces = deliver(parseFault("pieces=3"), {{1, 2, 3}, {4, 5, 6, 7}});
  ASSERT_EQ(pieces.size(), 3U);
  EXPECT_EQ(pieces[0].bytes, (Bytes{1, 2}));
  EXPECT_EQ(pieces[1].bytes, (Bytes{3, 4}));
  EXPECT_EQ(pieces[2].bytes, (Bytes{5, 6, 7}));
  EXPECT_GT(pieces[1].delayMs, 0);
  EXPECT_EQ(deliver(parseFault("pieces=1000"), {{1, 2, 3}}).size(), 3U);
  EXPECT_TRUE(deliver(parseFault("close-inside"), {}).empty());
}

TEST(SimFaults, AreRefusedUnlessWhole) {
  EXPECT_EQ(parseFault("pieces").value().value, 2);
  EXPECT_EQ(parseFault("pieces=3@setPower#4:2").value().value, 3);
  EXPECT_FALSE(parseFault("reset").value().count);
  for (const char* text : {"",
                           "nothing",
                           "no-reply:",
                           "no-reply:0",
                           "no-reply:-1",
                           "no-reply:2x",
                           "no-reply=5",
                           "pieces=0",
                           "pieces=",
                           "pieces=1001",
                           "late-reply=2:",
                           "no-reply:99999999999",
                           "refuse@",
                           "refuse@nothing",
                           "refuse@setPower#",
                           "refuse@setPower#0",
                           "refuse@setPower#x",
                           "refuse@#1",
                           "refuse@setPower:",
                           "@setPower",
                           "refuse@setPower@setTime",
                           "refuse:1@setPower",
                           "refuse#1"}) {
    EXPECT_FALSE(parseFault(text)) << text;
  }
}

TEST(SimFaults, PassOverOtherMethods) {
  FaultPlan plan({parseFault("refuse@setPower#2:1").value(), parseFault("reset@setPower").value(),
                  parseFault("garbage:1").value()});
  const auto kind = [&plan](std::string_view method) {
    const auto fault = plan.next(method);
    return std::string(fault ? faultName(fault->kind) : "none");
  };
  EXPECT_EQ(kind("setPower"), "reset");  // its first; the refusal waits for the second
  EXPECT_EQ(kind("setTime"), "garbage");
  EXPECT_EQ(kind("setTime"), "none");
  EXPECT_EQ(kind("setPower"), "refuse");
  EXPECT_EQ(kind("setPower"), "reset");
}

}  // namespace
}  // namespace tovi::sim
