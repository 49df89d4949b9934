#include <gtest/gtest.h>

#include "tests/simulator/asked_controller.h"

namespace tovi::sim {
namespace {

class DisplayTest : public testing::Test, protected AskedController {};

// Well-formed or not, as deep as a frame is long.
TEST_F(DisplayTest, RefusesSettingsThatAreNoNumbersInAnObject) {
  const std::string deep(60'000, '[');
  std::string nested;
  for (int i = 0; i < 600; ++i) nested += R"({"a":)";
  const std::string settings[] = {
      "",
      "null",
      "1",
      R"("videoSource")",
      R"(["videoSource",1])",
      "{}",
      R"({"videoSource":null})",
      R"({"videoSource":true})",
      R"({"videoSource":[1]})",
      R"({"videoSource":{"videoSource":1}})",
      R"({"videoSource":1.0})",
      R"({"videoSource":1e0})",
      R"({"videoSource":1e999})",
      R"({"videoSource":-1})",
      R"({"videoSource":4294967297})",
      R"({"videoSource":18446744073709551617})",
      R"({"videoSource":"1 "})",
      R"({"videoSource":"+1"})",
      R"({"videoSource":""})",
      R"({"videoSource":1,})",
      R"({"videoSource":1}{})",
      R"({"videoSource":1)",
      R"({'videoSource':1})",
      "{\"videoSource\":1,\"a\":\"\xC3\"}",
      std::string("{\"videoSource\":1}\0", 18),
      deep,
      nested,
      nested + "1" + std::string(600, '}'),
  };
  for (const std::string& setting : settings) {
    EXPECT_EQ(ask(0xA3, bytesOf(setting)), "A3: 00") << setting.substr(0, 80);
    EXPECT_EQ(ask(0xA4, bytesOf(setting)), "A4: 00") << setting.substr(0, 80);
    EXPECT_EQ(ask(0xA5, bytesOf(setting)), "A5: 00") << setting.substr(0, 80);
  }
  EXPECT_EQ(mController.state().display.videoSource, 0);
}

TEST_F(DisplayTest, TakesTheLastOfSettingsThatComeTwice) {
  EXPECT_EQ(ask(0xA3, words(R"({"videoSource":9,"x":[{"videoSource":8}],"videoSource":2})")),
            "A3: 01");
  EXPECT_EQ(mController.state().display.videoSource, 2);
}

}  // namespace
}  // namespace tovi::sim
