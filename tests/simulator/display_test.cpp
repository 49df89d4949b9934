// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "tests/simulator/asked_controller.h"

namespace tovi::sim {
namespace {

class DisplayTest : public testing::Test, protected AskedController {};

TEST_F(DisplayTest, TellsBrokenPixelsInParts) {
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
TEST_F(DisplayTest, RefusesSettingsThatAreNoNumbersInAnObject) {
  const std::string deep(60'000, '[');
  std::string nested;
  for (int i = 0; i < 600; ++i) nested += R"({"a":)";
  const std::string settings[] = {
      "",
      "1",
      R"(["videoSource",1])",
      R"({"videoSource":true})",
      R"({"videoSource":[1]})",
      R"({"videoSource":1.0})",
      R"({"videoSource":1e999})",
      R"({"videoSource":-1})",
      R"({"videoSource":4294967297})",
      R"({"videoSource":"1 "})",
      R"({"videoSource":""})",
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

}  // namespace
}  // namespace tovi::sim
