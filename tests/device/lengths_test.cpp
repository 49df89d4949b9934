// SPDX-License-Identifier: MIT
// How long an argument may be: what its command allows, and what fits a frame.
#include <gtest/gtest.h>
#include <tovisdk/tovisdk.h>

#include "tests/device/call_table.h"
#include "tests/support/fake_platform_test.h"
#include "tests/support/wire.h"

namespace tovi::test {
namespace {

using T = ToviTraffic;
using Text = const std::string&;

constexpr char kKey[] = "12345678";

struct Mode {
  void (ToviTraffic::*setKey)(const char*);
  std::size_t most;    // bytes of payload, the code of a 16-bit command included
  std::size_t padded;  // that many, enciphered
};

const Mode kCiphers[] = {{&ToviTraffic::setDesKey, 65527, 65528},
                         {&ToviTraffic::setAesKey, 65519, 65520},
                         {&ToviTraffic::setSM4Key, 65519, 65520}};

struct TextCall {
  const char* what;
  std::string (*call)(ToviTraffic&, Text text);
  std::size_t around;    // bytes of the payload that are not the text
  std::size_t unit = 1;  // bytes of an entry, of which a list has as many as the text has letters
};

#define WITH(...) #__VA_ARGS__, [](ToviTraffic & t, Text s) { return show(t.__VA_ARGS__); }

const TextCall kCalls[] = {
    {WITH(setDeviceName(s.c_str())), 1},
    {WITH(setDeviceKey(s)), 2},
    {WITH(setPingIp(s)), 2},
    {WITH(setServerIPLists(s)), 2},
    {WITH(addWhitelist(s)), 2},
    {WITH(removeWhitelist(s)), 2},
    {WITH(setRDSRoad(s)), 0},
    {WITH(setTimeAndTimeZone({0, s, ""})), 3},
    {WITH(setDeviceNTPParam({true, s})), 1},
    {WITH(sendLocalUpdate(1, s.c_str())), 2},
    {WITH(sendTestLocalUpdate(1, s.c_str())), 2},
    {WITH(sendFile("/nowhere", s.c_str())), 2},
    {WITH(downloadFiles(s)), 0},
    {WITH(setDevicePowerByTimeList(std::list<DevicePowerByTimeParam>(s.size()))), 1, 14},
    {WITH(setPlayByTimeList(std::list<PlayByTimeParam>(s.size()))), 1, 16},
    {WITH(setBrightnessByTimeList(std::list<BrightnessByTimeParam>(s.size()))), 1, 15},
};

class Lengths : public FakePlatformTest {
 protected:
  Lengths() { tovi_set_log_level(4); }

  // The bytes of the payload that the first frame carries; 0 when nothing was sent.
  static std::size_t sentBytes() {
    if (fake().sent.empty()) return 0;
    const std::string bytes = unframe(fake().sent.front());  // "13 01 00 …"
    return (bytes.size() + 1) / 3 - 1;
  }

  // How a call with a text of that size ends, on a controller that is silent.
  template <class Action>
  static ToviOutcome outcomeOf(ToviTraffic& traffic, Action action, std::size_t size) {
    fake().sent.clear();
    fake().connections.clear();
    const std::string result = action(traffic, std::string(size, '1'));
    const bool refused = traffic.lastOutcome() == RefusedArgument;
    EXPECT_EQ(fake().connections.empty(), refused);
    if (refused) {
      EXPECT_TRUE(result == "-15" || result == "false") << result;
    }
    return traffic.lastOutcome();
  }
};

TEST_F(Lengths, WithAKeyEndWhereTheCipherDoes) {
  for (const Mode& mode : kCiphers) {
    for (const TextCall& call : kCalls) {
      SCOPED_TRACE(call.what + std::to_string(mode.most));
      ToviTraffic traffic("127.0.0.1", 5005);
      (traffic.*mode.setKey)(kKey);
      const std::size_t most = (mode.most - call.around) / call.unit;
      EXPECT_EQ(outcomeOf(traffic, call.call, most), NoReply);
      if (call.unit == 1) {
        EXPECT_EQ(sentBytes(), mode.padded);
      }
      EXPECT_EQ(outcomeOf(traffic, call.call, most + 1), RefusedArgument);
    }
  }
}

TEST_F(Lengths, WithoutAKeyHaveNoEnd) {
  for (const TextCall& call : kCalls) {
    ToviTraffic traffic("127.0.0.1", 5005);
    EXPECT_EQ(outcomeOf(traffic, call.call, 150000 / call.unit), NoReply) << call.what;
    if (call.unit == 1) {
      EXPECT_EQ(fake().sent.at(0).size(), 7 + 150000 + call.around) << call.what;
    }
  }
}

TEST_F(Lengths, OfSomeTextsHaveLimitsOfTheirOwn) {
  struct {
    int (ToviTraffic::*set)(const std::string&);
    std::size_t least;
    std::size_t most;
  } const cases[] = {{&T::connectWifi, 0, 1024},      {&T::setFont, 0, 1024},
                     {&T::setWifiApConfig, 0, 1024},  {&T::setLoraInfo, 0, 4096},
                     {&T::setSensorInfo, 0, 4096},    {&T::setAdvanceTiming, 0, 4096},
                     {&T::removeAppPageName, 1, 256}, {&T::sendFtpDownloadaddress, 1, 1024},
                     {&T::updateFileName, 1, 1024}};
  for (const auto& c : cases) {
    SCOPED_TRACE(&c - cases);
    ToviTraffic traffic("127.0.0.1", 5005);
    const auto set = [&](ToviTraffic& t, Text text) { return show((t.*c.set)(text)); };
    for (const std::size_t size : {c.least, c.most}) {
      EXPECT_EQ(outcomeOf(traffic, set, size), NoReply);
      EXPECT_EQ(sentBytes(), size);
    }
    EXPECT_EQ(outcomeOf(traffic, set, c.most + 1), RefusedArgument);
    if (c.least == 0) continue;
    EXPECT_EQ(outcomeOf(traffic, set, c.least - 1), RefusedArgument);
  }
}

TEST_F(Lengths, APlaylistIsOneChunkHoweverLong) {
  for (const char* reply : {"12 01", "14 01 00 01", "F9 01", "1C 01"}) fake().arrive(frame(reply));
  ToviTraffic traffic("127.0.0.1", 5005);
  EXPECT_EQ(traffic.sendPlayList(7, std::string(80000, 'x').c_str()), 1);
  ASSERT_EQ(fake().sent.size(), 3u);
  EXPECT_EQ(unframe(fake().sent[1]).substr(0, 11), "13 01 00 78");
  EXPECT_EQ(fake().sent[1].size(), 80000u + 2 + 7);

  for (const Mode& mode : kCiphers) {
    ToviTraffic secret("127.0.0.1", 5005);
    (secret.*mode.setKey)(kKey);
    EXPECT_EQ(secret.sendPlayList(7, std::string(mode.most - 1, 'x').c_str()), -15);
    EXPECT_EQ(secret.sendPlayList(7, std::string(mode.most - 2, 'x').c_str()), -3);
  }
}

TEST_F(Lengths, WithARefusedKeyAreThoseOfTheOneBefore) {
  ToviTraffic traffic("127.0.0.1", 5005);
  for (const Mode& mode : kCiphers) {
    (traffic.*mode.setKey)("123456789");
    EXPECT_EQ(traffic.lastOutcome(), RefusedArgument);
    EXPECT_EQ(traffic.setRDSRoad(std::string(65528, '1')), -11);
  }
}

}  // namespace
}  // namespace tovi::test
