// SPDX-License-Identifier: MIT
// Arguments that no careful host would pass: an answer of the function's kind, and nothing broken.
#include <tovisdk/flat.h>
#include <tovisdk/text.h>

#include <algorithm>
#include <functional>
#include <tuple>
#include <type_traits>

#include "tests/support/fake_platform_test.h"

namespace {

constexpr char kIp[] = "127.0.0.1";
constexpr unsigned short kPort = 5005;

class FlatArguments : public tovi::test::FakePlatformTest {};

// A function of texts, and of other arguments that stay 1.
struct Function {
  std::string name;
  const char* answer;  // when nothing answers
  std::size_t texts;
  std::function<const char*(const char* ip, const char* const* texts)> call;
};

template <class Parameter>
Parameter taken(const char* const*& texts) {
  if constexpr (std::is_same_v<Parameter, const char*>) {
    return *texts++;
  } else {
    return Parameter{1};
  }
}

template <class... Parameters>
Function taking(const char* name, const char* answer,
                const char* (*function)(const char*, unsigned short, Parameters...)) {
  const auto call = [function](const char* ip, const char* const* texts) {
    // In braces, which are worked through from left to right.
    return std::apply(function, std::tuple<const char*, unsigned short, Parameters...>{
                                    ip, kPort, taken<Parameters>(texts)...});
  };
  return {name, answer, (std::size_t{std::is_same_v<Parameters, const char*>} + ...), call};
}

const Function kFunctions[] = {
    taking("setBrightnessAuto", "failed", setBrightnessAuto),
    taking("setDevicePowerByTimeList", "failed", setDevicePowerByTimeList),
    taking("setPlayByTimeList", "failed", setPlayByTimeList),
    taking("setBrightnessByTimeList", "failed", setBrightnessByTimeList),
    taking("setAdvanceTiming", "failed", setAdvanceTiming),
    taking("setTime", "failed", setTime),
    taking("setTimeAndTimeZone", "failed", setTimeAndTimeZone),
    taking("setDeviceNTPParam", "failed", setDeviceNTPParam),
    taking("setEdidInfo", "failed", setEdidInfo),
    taking("sendPlayList", "failed", sendPlayList),
    taking("sendFile", "failed", sendFile),
    taking("sendLocalUpdate", "failed", sendLocalUpdate),
    taking("sendFtpDownloadaddress", "failed", sendFtpDownloadaddress),
    taking("updateFileName", "failed", updateFileName),
    taking("removeAppPageName", "failed", removeAppPageName),
    taking("setDeviceSecretParam", "failed", setDeviceSecretParam),
    taking("setDeviceName", "success", setDeviceName),
    taking("setDeviceKey", "success", setDeviceKey),
    taking("setDesKey", "success", setDesKey),
    taking("setAesKey", "success", setAesKey),
    taking("setDeviceNetBasicParam", "success", setDeviceNetBasicParam),
    taking("getDeviceScreenshot", "failed", getDeviceScreenshot),
};

TEST_F(FlatArguments, OfWhichATextIsNullSendNothing) {
  for (const Function& function : kFunctions) {
    for (std::size_t i = 0; i < function.texts; ++i) {
      const char* texts[] = {"1", "1", "1", "1"};
      texts[i] = nullptr;
      fake().files.clear();
      EXPECT_STREQ(function.call(kIp, texts), function.answer) << function.name << i;
      EXPECT_EQ(fake().opened, 0) << function.name << i;
      EXPECT_TRUE(fake().logged("error " + function.name + " refused: a text is null"))
          << function.name << i;
    }
  }
}

TEST_F(FlatArguments, OfEveryKindGetAnAnswer) {
  std::string numbers;
  while (numbers.size() < 1 << 20) numbers += "1-2-3-4-5-6 ";
  const std::string spaces(1 << 20, ' ');
  const std::string letters(1 << 20, 'x');
  const auto expectAnswers = [](const char* ip, const char* text) {
    const char* const texts[] = {text, text, text, text};
    for (const Function& function : kFunctions) {
      if (function.name == "getDeviceScreenshot") continue;  // which would make the file
      EXPECT_STREQ(function.call(ip, texts), function.answer) << function.name;
    }
  };
  tovi_set_log_level(4);
  for (const char* text :
       {"", " ", "x", "%n%s%n", "1 2 3 x 5 -6 99999999999 8 9 10 11 12 13 14 15 16 17 18", "1-2-3",
        "-1--2-", "2024-1-2-3-4-5-6-7-8 x", spaces.c_str(), numbers.c_str(), letters.c_str()}) {
    expectAnswers(kIp, text);
  }
  EXPECT_GT(fake().opened, 0);
  fake().connections.clear();
  for (const char* ip : {static_cast<const char*>(nullptr), "", "%s%n", letters.c_str()}) {
    expectAnswers(ip, "1 2 3");
  }
  EXPECT_EQ(std::count(fake().connections.begin(), fake().connections.end(), "127.0.0.1:5005"), 0);
  EXPECT_EQ(fake().opened, fake().closed);
}

}  // namespace
