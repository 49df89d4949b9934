// SPDX-License-Identifier: MIT
#include "simulator/controller.h"

#include <gtest/gtest.h>

#include "simulator/describe.h"
#include "tests/simulator/asked_controller.h"
#include "tests/simulator/literal.h"

namespace tovi::sim {
namespace {

class ControllerTest : public testing::Test, protected AskedController {};

TEST_F(ControllerTest, TellsWhatWasSet) {
  EXPECT_EQ(ask(0xA9), "A9: 32");
  EXPECT_EQ(ask(0x45, "07"), "46: 01");
  EXPECT_EQ(ask(0xA9), "A9: 07");

  EXPECT_EQ(ask(0x7E, "01"), "7F: 01 74 6F 76 69 73 69 6D");
  EXPECT_EQ(ask(0x7E, "00 C3 FB 00 41"), "7F: 01");  // bytes of any encoding
  EXPECT_EQ(ask(0x7E, "01"), "7F: 01 C3 FB 00 41");
  EXPECT_EQ(ask(0x7E, "00"), "7F: 01");
  EXPECT_EQ(ask(0x7E, "01"), "7F: 01");

  EXPECT_EQ(ask(0x23), "24: 53 49 4D 2D 31 2E 30 2E 30");
  EXPECT_EQ(ask(0xD5), "D5: 53 49 4D 30 30 30 30 30 30 30 30 30 31");
  EXPECT_EQ(ask(0x0D), "0E: 01");
  EXPECT_EQ(mController.state().restarts, 1U);
}

TEST_F(ControllerTest, ShowsSettingsInTheStatusBlock) {
  EXPECT_EQ(ask(0x01), "02: 00 00 00 00 00 00 01 00 01 01 01 19 01 00 00 78 02 50");
  EXPECT_EQ(ask(0x05, "02"), "06: 01");
  EXPECT_EQ(ask(0x07, "02 AA"), "08: 01");
  EXPECT_EQ(ask(0x01), "02: 00 00 00 00 00 00 01 00 00 02 01 19 01 00 00 78 02 AA");
  EXPECT_EQ(ask(0x05, "01"), "06: 01");
  EXPECT_EQ(ask(0x07, "01 00"), "08: 01");  // automatic; the level stays
  mController.change([](State& state) {
    state.temperature = -7;
    state.boxDoorOpen = true;
    state.inputInside = false;
    state.environmentBrightness = 255;
    state.date = 31;
  });
  EXPECT_EQ(ask(0x01), "02: 00 00 00 00 00 00 1F 01 01 01 00 07 00 00 00 FF 01 AA");
  EXPECT_EQ(mAnswer.told, "screen on, brightness 170 (automatic), -7 degrees");
}

TEST_F(ControllerTest, RefusesWhatItCannotRead) {
  struct Bad {
    std::uint16_t code;
    std::string_view payload;
    std::string_view reply;
  };
  constexpr Bad kBad[] = {
      {0x05, "", "06: 00"},      {0x05, "00", "06: 00"},    {0x05, "03", "06: 00"},
      {0x05, "01 01", "06: 00"}, {0x07, "", "08: 00"},      {0x07, "02", "08: 00"},
      {0x07, "00 50", "08: 00"}, {0x07, "04 50", "08: 00"}, {0x07, "02 50 00", "08: 00"},
      {0x45, "", "46: 00"},      {0x45, "01 02", "46: 00"}, {0x7E, "", "7F: 00"},
      {0x7E, "02 41", "7F: 00"},
  };
  for (const Bad& bad : kBad) EXPECT_EQ(ask(bad.code, bad.payload), bad.reply) << bad.payload;
  EXPECT_EQ(ask(0x01), "02: 00 00 00 00 00 00 01 00 01 01 01 19 01 00 00 78 02 50");
  EXPECT_EQ(mController.state().volume, 50);
  EXPECT_EQ(mController.state().name, "tovisim");
}

TEST_F(ControllerTest, KeepsQuietWhereNothingIsAwaited) {
  EXPECT_EQ(ask(0x00, "00"), "");
  EXPECT_EQ(mController.state().heartBeats, 1U);
  EXPECT_EQ(ask(0x60, "01"), "");
  EXPECT_EQ(mAnswer.method, "unknown command");
  EXPECT_EQ(mAnswer.asked, "0x60, 1 bytes");
  EXPECT_EQ(ask(0x0114 | 0x8000), "");
  EXPECT_EQ(mAnswer.asked, "0x8114, 0 bytes");
}

TEST_F(ControllerTest, SaysWhetherItHoldsAKey) {
  EXPECT_EQ(ask(0x010C), "01 0C: 00");
  mController.change([](State& state) { state.security.key = {Cipher::Aes, "12345678"}; });
  EXPECT_EQ(ask(0x010C), "01 0C: 01");
}

TEST_F(ControllerTest, ChangesNothingWhenToldToRefuse) {
  const Answer answer = mController.refuse({0x07, {2, 10}});
  ASSERT_EQ(answer.replies.size(), 1U);
  EXPECT_EQ(answer.replies[0].code, 0x08);
  EXPECT_EQ(answer.replies[0].payload, Bytes{0});
  EXPECT_EQ(mController.state().brightness, 80);
  EXPECT_TRUE(mController.refuse({0x00, {0}}).replies.empty());
}

Exchange exchangeOf(std::string_view frame, const Key& key, std::vector<Fault> faults = {}) {
  FrameReader reader;
  Controller controller;
  Session session;
  FaultPlan plan(std::move(faults));
  return converse(readRequest(reader.feed(literal(frame)).at(0), key).value(), controller, session,
                  key, plan);
}

TEST(SimDescribe, PutsAnExchangeIntoALine) {
  const Key des = parseKey("des:12345678").value();
  EXPECT_EQ(exchangeLine("127.0.0.1:50312", exchangeOf("AA FF FF 07 02 50 CC 38 4A", {})),
            "127.0.0.1:50312  setBrightness  level 80 (manual)  -> accepted");
  EXPECT_EQ(exchangeLine("127.0.0.1:50312",
                         exchangeOf("AA FF FF 07 4A EF E1 D4 6C AF CD 23 CC 49 4B", des)),
            "127.0.0.1:50312  setBrightness  level 80 (manual)  -> accepted   [des]");
  EXPECT_EQ(exchangeLine("127.0.0.1:50312",
                         exchangeOf("AA FF FF A9 CC 42 E1", {}, {{FaultKind::NoReply}})),
            "127.0.0.1:50312  getVolumeValue  -> volume 50   (fault: no-reply)");
}

TEST(SimDescribe, TakesFramesApart) {
  const Key des = parseKey("des:12345678").value();
  EXPECT_EQ(exchangeFrames(exchangeOf("AA FF FF 07 4A EF E1 D4 6C AF CD 23 CC 49 4B", des)),
            "  request, 15 bytes\n"
            "    start     AA\n"
            "    header    FF FF\n"
            "    command   07   setBrightness\n"
            "    payload   02 50\n"
            "    ciphered  4A EF E1 D4 6C AF CD 23   des\n"
            "    end       CC\n"
            "    checksum  49 4B   low byte first, over everything above\n"
            "  reply, 15 bytes\n"
            "    start     AA\n"
            "    header    FF FF\n"
            "    command   08   reply to setBrightness\n"
            "    payload   01\n"
            "    ciphered  DE EC BA 37 86 7B D1 42   des\n"
            "    end       CC\n"
            "    checksum  A1 53   low byte first, over everything above");
  EXPECT_EQ(exchangeFrames(exchangeOf("AA FF FF 7E 00 EE 0A EE 0C EE 0E CC 21 08", {},
                                      {{FaultKind::WrongChecksum}})),
            "  request, 14 bytes\n"
            "    start     AA\n"
            "    header    FF FF\n"
            "    command   7E   setDeviceName\n"
            "    payload   00 AA CC EE\n"
            "    escaped   00 EE 0A EE 0C EE 0E\n"
            "    end       CC\n"
            "    checksum  21 08   low byte first, over everything above\n"
            "  reply, 8 bytes\n"
            "    start     AA\n"
            "    header    FF FF\n"
            "    command   7F   reply to setDeviceName\n"
            "    payload   01\n"
            "    end       CC\n"
            "    checksum  6C B1   wrong on purpose, should be 93 4E");
}

}  // namespace
}  // namespace tovi::sim
