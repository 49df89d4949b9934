// SPDX-License-Identifier: MIT
#include "simulator/controller.h"

#include <gtest/gtest.h>

#include "simulator/describe.h"
#include "tests/simulator/asked_controller.h"
#include "tests/simulator/literal.h"

namespace tovi::sim {
namespace {

class ControllerTest : public testing::Test, protected AskedController {};

TEST_F(ControllerTest, ShowsSettingsInTheStatusBlock) {
  EXPECT_EQ(ask(0x01), "02: 00 00 00 00 00 00 01 00 01 01 01 19 01 00 00 78 02 50");
  EXPECT_EQ(ask(0x05, "02"), "06: 01");
  EXPECT_EQ(ask(0x07, "02 AA"), "08: 01");
  EXPECT_EQ(ask(0x01), "02: 00 00 00 00 00 00 01 00 00 02 01 19 01 00 00 78 02 AA");
  EXPECT_EQ(ask(0x05, "01"), "06: 01");
  EXPECT_EQ(ask(0x07, "01 00"), "08: 01");  // automatic; the level stays
  mController.change([](State& state) {
    state.temperature = -300;
    state.boxDoorOpen = true;
    state.inputInside = false;
    state.environmentBrightness = 255;
    state.date = 31;
  });
  EXPECT_EQ(ask(0x01), "02: 00 00 00 00 00 00 1F 01 01 01 00 7F 00 00 00 FF 01 AA");
  EXPECT_EQ(mAnswer.told, "screen on, brightness 170 (automatic), -127 degrees");
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
                         exchangeOf("AA FF FF A9 CC 42 E1", des, {{FaultKind::LateReply}})),
            "127.0.0.1:50312  getVolumeValue  -> volume 50   [des]   (fault: late-reply)");
}

TEST(SimDescribe, TakesFramesApart) {
  const Key des = parseKey("des:12345678").value();
  EXPECT_EQ(exchangeFrames(exchangeOf("AA FF FF 7E AC DF 56 EE 0E 96 40 FC 9C CC AD E4", des,
                                      {{FaultKind::WrongChecksum}})),
            "  request, 16 bytes\n"
            "    start     AA\n"
            "    header    FF FF\n"
            "    command   7E   setDeviceName\n"
            "    payload   00 44\n"
            "    ciphered  AC DF 56 EE 96 40 FC 9C   des\n"
            "    escaped   AC DF 56 EE 0E 96 40 FC 9C\n"
            "    end       CC\n"
            "    checksum  AD E4   low byte first, over everything above\n"
            "  reply, 15 bytes\n"
            "    start     AA\n"
            "    header    FF FF\n"
            "    command   7F   reply to setDeviceName\n"
            "    payload   01\n"
            "    ciphered  DE EC BA 37 86 7B D1 42   des\n"
            "    end       CC\n"
            "    checksum  37 47   wrong on purpose, should be C8 B8");
}

}  // namespace
}  // namespace tovi::sim
