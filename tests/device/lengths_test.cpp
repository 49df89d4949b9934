// SPDX-License-Identifier: MIT
// What still fits a frame, with each key and without one.
#include <gtest/gtest.h>
#include <tovisdk/tovisdk.h>

#include <fstream>

#include "tests/support/fake_platform_test.h"
#include "tests/support/wire.h"

namespace tovi::test {
namespace {

constexpr char kKey[] = "12345678";

struct Mode {
  const char* name;
  void (ToviTraffic::*setKey)(const char*);
  std::size_t most;    // bytes of payload, the code of a 16-bit command included
  std::size_t padded;  // that many, enciphered
};

const Mode kModes[] = {{"des", &ToviTraffic::setDesKey, 65527, 65528},
                       {"aes", &ToviTraffic::setAesKey, 65519, 65520},
                       {"sm4", &ToviTraffic::setSM4Key, 65519, 65520}};

struct TextCall {
  const char* method;
  std::size_t around;  // bytes of the payload that are not the text
  int (*call)(ToviTraffic&, const std::string& text);
};

const TextCall kCalls[] = {
    {"setDeviceName", 1,
     [](ToviTraffic& t, const std::string& s) { return t.setDeviceName(s.c_str()); }},
    {"setPingIp", 2, [](ToviTraffic& t, const std::string& s) { return t.setPingIp(s); }},
    {"setRDSRoad", 0, [](ToviTraffic& t, const std::string& s) { return t.setRDSRoad(s); }},
    {"setDeviceNTPParam", 1,
     [](ToviTraffic& t, const std::string& s) {
       return t.setDeviceNTPParam({true, s});
     }},
    {"setBrightnessByTimeList", 1,
     [](ToviTraffic& t, const std::string& s) {
       return t.setBrightnessByTimeList(std::list<BrightnessByTimeParam>(s.size() / 15));
     }},
    {"sendTestLocalUpdate", 2,
     [](ToviTraffic& t, const std::string& s) { return t.sendTestLocalUpdate(1, s.c_str()); }},
    {"sendFile", 2,
     [](ToviTraffic& t, const std::string& s) { return t.sendFile("/nowhere", s.c_str()); }},
    {"downloadFiles", 0,
     [](ToviTraffic& t, const std::string& s) { return t.downloadFiles(s) ? 1 : 0; }},
};

class Lengths : public FakePlatformTest {
 protected:
  // The bytes of the payload that the first frame carries; 0 when nothing was sent.
  static std::size_t sentBytes() {
    if (fake().sent.empty()) return 0;
    const std::string bytes = unframe(fake().sent.front());  // "13 01 00 …"
    return (bytes.size() + 1) / 3 - 1;
  }

  static ToviOutcome outcomeOf(ToviTraffic& traffic, const TextCall& call, std::size_t size) {
    fake().sent.clear();
    fake().connections.clear();
    call.call(traffic, std::string(size, '1'));
    return traffic.lastOutcome();
  }
};

TEST_F(Lengths, WithAKeyEndWhereTheCipherDoes) {
  tovi_set_log_level(4);
  for (const Mode& mode : kModes) {
    for (const TextCall& call : kCalls) {
      ToviTraffic traffic("127.0.0.1", 5005);
      (traffic.*mode.setKey)(kKey);
      const bool list = std::string_view(call.method) == "setBrightnessByTimeList";
      const std::size_t most = mode.most - call.around;
      EXPECT_EQ(outcomeOf(traffic, call, most), ToviOutcome::NoReply) << mode.name << call.method;
      // The brightness's mode goes out before its timetable.
      if (!list) {
        EXPECT_EQ(sentBytes(), mode.padded) << mode.name << " " << call.method;
      }
      const std::size_t tooMuch = list ? most + 15 : most + 1;
      EXPECT_EQ(outcomeOf(traffic, call, tooMuch), ToviOutcome::RefusedArgument)
          << mode.name << " " << call.method;
      EXPECT_TRUE(fake().connections.empty()) << mode.name << " " << call.method;
    }
  }
}

TEST_F(Lengths, WithoutAKeyHaveNoEnd) {
  tovi_set_log_level(4);
  for (const TextCall& call : kCalls) {
    ToviTraffic traffic("127.0.0.1", 5005);
    EXPECT_EQ(outcomeOf(traffic, call, 150000), ToviOutcome::NoReply) << call.method;
    if (fake().sent.size() == 1 && fake().sent.front().size() < 100) continue;
    EXPECT_GE(sentBytes(), 150000u) << call.method;
  }
}

TEST_F(Lengths, APlaylistIsOneChunkHoweverLong) {
  for (const char* reply : {"12 01", "14 01 00 01", "F9 01", "1C 01"}) fake().arrive(frame(reply));
  ToviTraffic traffic("127.0.0.1", 5005);
  EXPECT_EQ(traffic.sendPlayList(7, std::string(80000, 'x').c_str()), 1);
  ASSERT_EQ(fake().sent.size(), 3u);
  EXPECT_EQ(unframe(fake().sent[1]).substr(0, 11), "13 01 00 78");
  EXPECT_EQ(fake().sent[1].size(), 80000u + 2 + 7);

  ToviTraffic secret("127.0.0.1", 5005);
  secret.setSM4Key(kKey);
  EXPECT_EQ(secret.sendPlayList(7, std::string(65518, 'x').c_str()), -15);
  EXPECT_EQ(secret.sendPlayList(7, std::string(65517, 'x').c_str()), -3);
}

// What is plain whatever key is set, has no end either.
TEST_F(Lengths, OfARefusedKeyAreThoseOfTheOneBefore) {
  ToviTraffic traffic("127.0.0.1", 5005);
  traffic.setAesKey("short");
  EXPECT_EQ(traffic.lastOutcome(), ToviOutcome::RefusedArgument);
  EXPECT_EQ(traffic.setRDSRoad(std::string(65520, '1')), -11);
  traffic.setAesKey(kKey);
  EXPECT_EQ(traffic.lastOutcome(), ToviOutcome::Done);
  EXPECT_EQ(traffic.setRDSRoad(std::string(65520, '1')), -15);
}

}  // namespace
}  // namespace tovi::test
