// SPDX-License-Identifier: MIT
#include "simulator/controller.h"

#include <gtest/gtest.h>

#include "simulator/describe.h"
#include "tests/simulator/asked_controller.h"

namespace tovi::sim {
namespace {

class ControllerTest : public testing::Test, protected AskedController {};

TEST_F(ControllerTest, ShowsSettingsInTheStatusBlock) {
  EXPECT_EQ(ask(0x07, "02 AA"), "08: 01");
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

TEST_F(ControllerTest, TellsBrokenPixelsInParts) {
  EXPECT_EQ(ask(0x36), "37: 00 00 00");  // not tested yet
  EXPECT_EQ(ask(0x0B), "0C: 01 02 00 00 00");
  EXPECT_EQ(ask(0x36), "37: 01 01 00 | 37: " + words("3,1;17,8"));

  mController.change([](State& state) { state.display.badPixels.clear(); });
  EXPECT_EQ(ask(0x0B), "0C: 01 00 00 00 00");
  EXPECT_EQ(ask(0x36), "37: 01 00 00");

  mController.change([](State& state) { state.display.badPixels.assign(300, {1, 2}); });
  EXPECT_EQ(ask(0x0B), "0C: 01 2C 01 00 00");
  ask(0x36);
  ASSERT_EQ(mAnswer.replies.size(), 1U + 5);  // 1199 bytes
  EXPECT_EQ(hex(mAnswer.replies[0].payload), "01 05 00");
  std::string all;
  for (std::size_t i = 1; i < 6; ++i) all += textOf(mAnswer.replies[i].payload);
  std::string expected = "1,2";
  for (int i = 1; i < 300; ++i) expected += ";1,2";
  EXPECT_EQ(all, expected);
}

// Well-formed or not, as deep as a frame is long.
TEST_F(ControllerTest, RefusesSettingsThatAreNoNumbersInAnObject) {
  const std::string deep(60'000, '[');
  std::string nested;
  for (int i = 0; i < 600; ++i) nested += R"({"a":)";
  const std::string settings[] = {
      "",
      R"(["videoSource",1])",
      R"({"videoSource":true})",
      R"({"videoSource":1.0})",
      R"({"videoSource":1e999})",
      R"({"videoSource":-1})",
      R"({"videoSource":4294967297})",
      R"({"videoSource":"1 "})",
      R"({"videoSource":1,})",
      "{\"videoSource\":1,\"a\":\"\xC3\"}",
      std::string("{\"videoSource\":1}\0", 18),
      deep,
      nested + "1" + std::string(600, '}'),
  };
  for (const std::string& setting : settings) {
    EXPECT_EQ(ask(0xA3, bytesOf(setting)), "A3: 00") << setting.substr(0, 80);
  }
  EXPECT_EQ(mController.state().display.videoSource, 0);
  // Of two the last counts.
  EXPECT_EQ(ask(0xA3, words(R"({"videoSource":9,"x":[{"videoSource":8}],"videoSource":2})")),
            "A3: 01");
  EXPECT_EQ(mController.state().display.videoSource, 2);
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
