// SPDX-License-Identifier: MIT
// Arguments that no careful host would pass: an answer of the function's kind, and nothing broken.
#include <tovisdk/flat.h>
#include <tovisdk/text.h>

#include "flat/grammar.h"
#include "tests/support/fake_platform_test.h"

namespace {

constexpr char kIp[] = "127.0.0.1";

class FlatArguments : public tovi::test::FakePlatformTest {};

struct Function {
  const char* name;
  const char* (*call)(const char* ip, const char* text);
};

const Function kFunctions[] = {
    {"setBrightnessAuto",
     [](const char* ip, const char* t) { return setBrightnessAuto(ip, 1, t); }},
    {"setDevicePowerByTimeList",
     [](const char* ip, const char* t) { return setDevicePowerByTimeList(ip, 1, t); }},
    {"setPlayByTimeList",
     [](const char* ip, const char* t) { return setPlayByTimeList(ip, 1, t); }},
    {"setBrightnessByTimeList",
     [](const char* ip, const char* t) { return setBrightnessByTimeList(ip, 1, t); }},
    {"setAdvanceTiming", [](const char* ip, const char* t) { return setAdvanceTiming(ip, 1, t); }},
    {"setTime", [](const char* ip, const char* t) { return setTime(ip, 1, t); }},
    {"setTimeAndTimeZone",
     [](const char* ip, const char* t) { return setTimeAndTimeZone(ip, 1, 1, t, t); }},
    {"setDeviceNTPParam",
     [](const char* ip, const char* t) { return setDeviceNTPParam(ip, 1, 1, t); }},
    {"setEdidInfo", [](const char* ip, const char* t) { return setEdidInfo(ip, 1, t); }},
    {"sendPlayList", [](const char* ip, const char* t) { return sendPlayList(ip, 1, 1, t); }},
    {"sendFile", [](const char* ip, const char* t) { return sendFile(ip, 1, t, t); }},
    {"sendLocalUpdate", [](const char* ip, const char* t) { return sendLocalUpdate(ip, 1, 1, t); }},
    {"sendFtpDownloadaddress",
     [](const char* ip, const char* t) { return sendFtpDownloadaddress(ip, 1, t); }},
    {"updateFileName", [](const char* ip, const char* t) { return updateFileName(ip, 1, t); }},
    {"removeAppPageName",
     [](const char* ip, const char* t) { return removeAppPageName(ip, 1, t); }},
    {"getDeviceScreenshot",
     [](const char* ip, const char* t) {
       return getDeviceScreenshot(ip, 1, t == nullptr ? t : "/nowhere/x");
     }},
    {"setDeviceSecretParam",
     [](const char* ip, const char* t) { return setDeviceSecretParam(ip, 1, t, true); }},
};

const Function kAlways[] = {
    {"setDeviceName", [](const char* ip, const char* t) { return setDeviceName(ip, 1, t); }},
    {"setDeviceKey", [](const char* ip, const char* t) { return setDeviceKey(ip, 1, t); }},
    {"setDesKey", [](const char* ip, const char* t) { return setDesKey(ip, 1, t); }},
    {"setAesKey", [](const char* ip, const char* t) { return setAesKey(ip, 1, t); }},
    {"setDeviceNetBasicParam",
     [](const char* ip, const char* t) { return setDeviceNetBasicParam(ip, 1, t, t, t, -1, t); }},
};

TEST_F(FlatArguments, OfEveryKindGetAnAnswer) {
  std::string spaces(1 << 20, ' ');
  std::string numbers;
  while (numbers.size() < 1 << 20) numbers += "1-2-3-4-5-6 ";
  const std::string letters(1 << 20, 'x');
  const char* const texts[] = {nullptr,
                               "",
                               " ",
                               "x",
                               "%n%s%n",
                               "1 2 3 x 5 -6 99999999999 8 9 10 11 12 13 14 15 16 17 18",
                               "1-2-3",
                               "-1--2-",
                               "2024-1-2-3-4-5-6-7-8 x",
                               spaces.c_str(),
                               numbers.c_str(),
                               letters.c_str()};
  const auto expectAnswers = [](const char* ip, const char* text) {
    for (const Function& f : kFunctions) EXPECT_STREQ(f.call(ip, text), "failed") << f.name;
    for (const Function& f : kAlways) EXPECT_STREQ(f.call(ip, text), "success") << f.name;
  };
  tovi_set_log_level(4);
  for (const char* text : texts) expectAnswers(kIp, text);
  for (const char* ip : {static_cast<const char*>(nullptr), "", "%s%n", letters.c_str()}) {
    expectAnswers(ip, "1 2 3");
  }
  EXPECT_EQ(fake().opened, fake().closed);
}

TEST(FlatGrammar, DateTimeTokens) {
  struct {
    const char* token;
    int fields[6];
  } const cases[] = {{"2024-1-2-3-4-5", {2024, 1, 2, 3, 4, 5}},
                     {"2024-01", {2024, 1, 0, 0, 0, 0}},
                     {"", {}},
                     {"x-1-y", {0, 1, 0, 0, 0, 0}},
                     {"1-2-3-4-5-6-7", {1, 2, 3, 4, 5, 6}},
                     {"1--3", {1, 0, 3, 0, 0, 0}}};
  for (const auto& c : cases) {
    const std::tm time = tovi::flat::parseDateTime(c.token);
    const int fields[6] = {time.tm_year, time.tm_mon, time.tm_mday,
                           time.tm_hour, time.tm_min, time.tm_sec};
    for (int i = 0; i < 6; ++i) EXPECT_EQ(fields[i], c.fields[i]) << c.token << " field " << i;
  }
}

TEST(FlatGrammar, GroupsAndLeftovers) {
  EXPECT_EQ(tovi::flat::parsePowerEntries("a b c").size(), 1u);
  EXPECT_EQ(tovi::flat::parsePlayEntries("a b c d e f g").size(), 2u);
  EXPECT_EQ(tovi::flat::parsePlayEntries("a  b").size(), 1u);  // the empty token between counts
  EXPECT_EQ(tovi::flat::parseBrightnessEntries("a b").size(), 0u);
  const BrightnessItem curve =
      tovi::flat::parseCurve("1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18");
  EXPECT_EQ(curve.points[0].environmentBrightness, 1);
  EXPECT_EQ(curve.points[7].screenBrightness, 16);
  const DeviceSecretParam param = tovi::flat::parseSecretParam("l 2 1 k");
  EXPECT_EQ(param.label + "," + param.key + "," + param.secondKey, "l,k,");
  EXPECT_EQ(param.mode, 2);
  EXPECT_TRUE(param.enable);
}

}  // namespace
