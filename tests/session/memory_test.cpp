// SPDX-License-Identifier: MIT
// Memory that runs out at every point at which the library asks for it.
#include <gtest/gtest.h>
#include <tovisdk/flat.h>
#include <tovisdk/tovisdk.h>

#include <filesystem>
#include <fstream>
#include <functional>

#include "tests/support/failing_memory.h"
#include "tests/support/fake_platform_test.h"
#include "tests/support/wire.h"

namespace tovi::test {
namespace {

constexpr char kIp[] = "127.0.0.1";

// Results as texts, made with memory of the test's own.
std::string told(int number) { return std::to_string(number); }
std::string told(bool flag) { return flag ? "true" : "false"; }
std::string told(const std::string& text) { return "'" + text + "'"; }
std::string told(const char* text) { return text == nullptr ? "null" : text; }
std::string told(char* text) {
  const std::string copy = text == nullptr ? "null" : text;
  deleteArry(&text);
  return copy;
}
std::string told(const std::list<std::string>& names) {
  std::string text;
  for (const std::string& name : names) text += name + ",";
  return text;
}
std::string told(const EdidInfo& info) { return told(info.result) + "," + told(info.width); }
std::string told(const ResultParam& info) { return told(info.result) + "," + info.text; }
std::string told(BackUpsInfo* info) {
  const int state = info == nullptr ? -1 : info->state;
  delete info;
  return told(state);
}
template <class Record>
std::string told(Record* record) {
  const std::string text = record == nullptr ? "null" : "a record";
  delete record;
  return text;
}

template <class Result>
std::string owned(const Result& result) {
  const OwnMemory own;
  return told(result);
}

struct Case {
  const char* name;
  std::function<std::string(ToviTraffic&)> call;
  std::vector<const char*> replies;
  std::string failure;
};

std::vector<Case> cases() {
  static const std::string path = (std::filesystem::temp_directory_path() / "tovi_memory").string();
  static const std::string text(300, 't');
  std::ofstream(path) << "content";
  return {
      {"setPower", [](auto& t) { return owned(t.setPower(true)); }, {"06 01"}, "-11"},
      {"setDeviceName",
       [](auto& t) { return owned(t.setDeviceName(text.c_str())); },
       {"7F 01"},
       "-11"},
      {"setAdvanceTiming",
       [](auto& t) { return owned(t.setAdvanceTiming(text)); },
       {"DC 01"},
       "-11"},
      {"setEdidInfo",
       [](auto& t) {
         return owned(t.setEdidInfo({0, 800, 600, 60}));
       },
       {"A4 01"},
       "-11"},
      {"setVideoControlInfo",
       [](auto& t) { return owned(t.setVideoControlInfo(3)); },
       {"A3 01"},
       "-11"},
      {"setBrightnessAuto",
       [](auto& t) {
         BrightnessItem curve;
         return owned(t.setBrightnessAuto(&curve));
       },
       {"08 01", "18 01"},
       "-11"},
      {"setPlayByTimeList",
       [](auto& t) { return owned(t.setPlayByTimeList({})); },
       {"42 01"},
       "-11"},
      {"setDeviceKey",
       [](auto& t) { return owned(t.setDeviceKey(text)); },
       {"EF 03 01 01"},
       "false"},
      {"setPingIp", [](auto& t) { return owned(t.setPingIp(text)); }, {"EF 01 01 01"}, "-1"},
      {"getPowerState", [](auto& t) { return owned(t.getPowerState()); }, {"EF 14 01 01"}, "-1"},
      {"getDeviceName",
       [](auto& t) { return owned(t.getDeviceName()); },
       {"7F 01 61 62 63"},
       "null"},
      {"getSn",
       [](auto& t) { return owned(t.getSn()); },
       {"D5 30 31 32 33 34 35 36 37 38 39 30 31 32 33 34 35 36 37"},
       "''"},
      {"getMac", [](auto& t) { return owned(t.getMac()); }, {"B3 10 11 12 13 14 15"}, "''"},
      {"getDeviceType",
       [](auto& t) { return owned(t.getDeviceType()); },
       {"02 34 12 00 00 00 00 05 01 00 01 01 19 01 00 00 C8 02 50"},
       "null"},
      {"getEdidInfo",
       [](auto& t) { return owned(t.getEdidInfo()); },
       {"A2 01 7B 22 77 69 64 74 68 22 3A 38 7D"},
       "0,0"},
      {"getTimeAndTimeZone",
       [](auto& t) { return owned(t.getTimeAndTimeZone()); },
       {"96 31 2C 55 54 43 2C 47 4D 54"},
       "null"},
      {"getDevicePowerByTimeList",
       [](auto& t) { return owned(t.getDevicePowerByTimeList()); },
       {"52 01 02 01 E8 07 05 04 03 02 01 E9 07 05 04 03"},
       "null"},
      {"getBrightnessAuto",
       [](auto& t) { return owned(t.getBrightnessAuto()); },
       {"2C 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00"},
       "null"},
      {"getNowPlayContent",
       [](auto& t) { return owned(t.getNowPlayContent()); },
       {"2E 01 00 05 61 62"},
       "null"},
      {"getBackupsTimes",
       [](auto& t) { return owned(t.getBackupsTimes()); },
       {"EF 11 01 01 01 20 0A FF"},
       "-1"},
      {"getLoraInfo", [](auto& t) { return owned(t.getLoraInfo()); }, {"D6 01 61 62"}, "0,"},
      {"getRDSRoad", [](auto& t) { return owned(t.getRDSRoad()); }, {"9A 01 02 03"}, "''"},
      {"getAllMediaFileName",
       [](auto& t) { return owned(t.getAllMediaFileName()); },
       {"B0 01 5B 22 61 22 2C 22 62 22 5D"},
       ""},
      {"getDetectErrorPointInfo",
       [](auto& t) { return owned(t.getDetectErrorPointInfo()); },
       {"0C 01", "37 01 02 00", "37 61 62", "37 63"},
       "''"},
      {"sendFile",
       [](auto& t) { return owned(t.sendFile(path.c_str(), "n")); },
       {"12 01", "14 01 00 01", "F9 01"},
       "-1"},
      {"sendPlayList",
       [](auto& t) { return owned(t.sendPlayList(5, text.c_str())); },
       {"12 01", "14 01 00 01", "F9 01", "1C 01"},
       "-14"},
      {"downloadFiles",
       [](auto& t) { return owned(t.downloadFiles(text)); },
       {"AB 02", "AB 01"},
       "false"},
      {"getDeviceScreenshot",
       [](auto& t) { return owned(t.getDeviceScreenshot("/dev/null")); },
       {"81 00 00 61 62"},
       "-1"},
  };
}

class Memory : public FakePlatformTest {
 protected:
  static void prepare(const Case& c) {
    const std::set<std::string> folders = fake().folders;
    const std::time_t now = fake().now;
    fake() = FakePlatform{};
    fake().folders = folders;
    fake().now = now;
    for (const char* reply : c.replies) fake().arrive(frame(reply));
  }

  static void expectPrefix(const std::vector<std::string>& sent,
                           const std::vector<std::string>& whole) {
    ASSERT_LE(sent.size(), whole.size());
    EXPECT_TRUE(std::equal(sent.begin(), sent.end(), whole.begin()));
  }

  // Strikes each allocation of a call in turn; gives how many there are.
  static long strikeEach(const Case& c, bool fromThenOn) {
    prepare(c);
    ToviTraffic first(kIp, 5005);
    const std::string success = c.call(first);
    const std::vector<std::string> whole = fake().sent;
    for (long n = 1;; ++n) {
      SCOPED_TRACE(std::string(c.name) + " without allocation " + std::to_string(n));
      prepare(c);
      ToviTraffic traffic(kIp, 5005);
      std::string result;
      {
        const FailingMemory failing(n, fromThenOn);
        result = c.call(traffic);
      }
      if (!FailingMemory::struck()) return n - 1;
      // A record that was lost costs nothing else.
      const bool survived = traffic.lastOutcome() == ToviOutcome::Done && result == success;
      if (!survived) {
        EXPECT_EQ(traffic.lastOutcome(), ToviOutcome::OutOfMemory);
        EXPECT_EQ(result, c.failure);
      }
      expectPrefix(fake().sent, whole);
      EXPECT_EQ(fake().closed, fake().opened);
      EXPECT_EQ(fake().cleanUps, fake().startUps);
      traffic.discardKeptBytes();
      prepare(c);
      EXPECT_EQ(c.call(traffic), success);
    }
  }
};

TEST_F(Memory, RunsOutOrderly) {
  for (const Case& c : cases()) {
    EXPECT_GE(strikeEach(c, false), 2) << c.name;
    EXPECT_GE(strikeEach(c, true), 2) << c.name;
  }
}

TEST_F(Memory, RunsOutWithAKeySet) {
  using Setter = void (ToviTraffic::*)(const char*);
  const std::pair<Setter, const char*> ciphers[] = {
      {&ToviTraffic::setDesKey, "08 DE EC BA 37 86 7B D1 42"}};
  for (const auto& [setKey, reply] : ciphers) {
    const Case c{"setBrightness",
                 [setKey = setKey](ToviTraffic& t) {
                   (t.*setKey)("12345678");
                   if (t.lastOutcome() == ToviOutcome::OutOfMemory) return owned(-11);
                   return owned(t.setBrightness(80));
                 },
                 {reply},
                 "-11"};
    EXPECT_GT(strikeEach(c, false), 4);
    EXPECT_GT(strikeEach(c, true), 4);
  }
}

struct FlatCase {
  const char* name;
  std::function<std::string()> call;
  std::vector<const char*> replies;
};

TEST_F(Memory, RunsOutInFlatCalls) {
  const FlatCase flat[] = {
      {"setPower", [] { return owned(setPower(kIp, 1, true)); }, {"06 01"}},
      {"setDeviceName", [] { return owned(setDeviceName(kIp, 1, "name")); }, {"7F 01"}},
      {"setDevicePowerByTimeList",
       [] { return owned(setDevicePowerByTimeList(kIp, 1, "2024-1-2-3-4-5 2025-1-2-3-4-5")); },
       {"8B 01"}},
      {"setBrightnessByTimeList",
       [] { return owned(setBrightnessByTimeList(kIp, 1, "a b 1 c d 2")); },
       {"08 01", "44 01"}},
      {"setBrightnessAuto",
       [] { return owned(setBrightnessAuto(kIp, 1, "1 2 3 4")); },
       {"08 01", "18 01"}},
      {"setTime", [] { return owned(setTime(kIp, 1, "124-0-2-3-4-5")); }, {"0A 01"}},
      {"setTimeAndTimeZone",
       [] { return owned(setTimeAndTimeZone(kIp, 1, 1, "Asia/Shanghai", "GMT+08:00")); },
       {"95 01"}},
      {"setDeviceNTPParam",
       [] { return owned(setDeviceNTPParam(kIp, 1, 1, "ntp.example.org.long")); },
       {"97 01"}},
      {"setEdidInfo", [] { return owned(setEdidInfo(kIp, 1, "1 800 600 60")); }, {"A4 01"}},
      {"setDeviceSecretParam",
       [] { return owned(setDeviceSecretParam(kIp, 1, "label 0 1  12345678", true)); },
       {"71 01"}},
      {"setDeviceNetBasicParam",
       [] {
         return owned(setDeviceNetBasicParam(kIp, 1, "192.168.100.100", "255.255.255.0",
                                             "192.168.100.1", 1, "192.168.100.2"));
       },
       {}},
      {"sendPlayList",
       [] { return owned(sendPlayList(kIp, 1, 5, "text")); },
       {"12 01", "14 01 00 01", "F9 01", "1C 01"}},
      {"getScreenStatus", [] { return owned(getScreenStatus(kIp, 1)); }, {"BA 01"}},
      {"getDeviceName", [] { return owned(getDeviceName(kIp, 1)); }, {"7F 01 E9 99 90 61 62 63"}},
      {"getDeviceType",
       [] { return owned(getDeviceType(kIp, 1)); },
       {"02 34 12 00 00 00 00 05 01 00 01 01 19 01 00 00 C8 02 50"}},
      {"getBrightnessByTimeList",
       [] { return owned(getBrightnessByTimeList(kIp, 1)); },
       {"51 01 02 01 E8 07 05 04 03 02 01 E9 07 05 04 03 09"}},
      {"getFileListName",
       [] { return owned(getFileListName(kIp, 1, 2)); },
       {"B9 01 5B 22 61 22 5D"}},
      {"getAllPlaylistId", [] { return owned(getAllPlaylistId(kIp, 1)); }, {"A7 01 02"}},
      {"getEdidInfo",
       [] { return owned(getEdidInfo(kIp, 1)); },
       {"A2 01 7B 22 77 69 64 74 68 22 3A 38 7D"}},
      {"getSurveil", [] { return owned(getSurveil(kIp, 1)); }, {"A0 01 61"}},
      {"getDetectErrorPointInfo",
       [] { return owned(getDetectErrorPointInfo(kIp, 1)); },
       {"0C 01", "37 01 01 00", "37 61 62"}},
  };
  for (const FlatCase& c : flat) {
    for (const bool fromThenOn : {false, true}) {
      prepare({"", {}, c.replies, ""});
      const std::string success = c.call();
      const std::vector<std::string> whole = fake().sent;
      prepare({"", {}, {}, ""});
      const std::string failure = c.call();
      long n = 1;
      for (;; ++n) {
        SCOPED_TRACE(std::string(c.name) + " without allocation " + std::to_string(n));
        prepare({"", {}, c.replies, ""});
        std::string result;
        {
          const FailingMemory failing(n, fromThenOn);
          result = c.call();
        }
        if (!FailingMemory::struck()) break;
        EXPECT_TRUE(result == success || result == failure || result == "null") << result;
        expectPrefix(fake().sent, whole);
        EXPECT_EQ(fake().closed, fake().opened);
        EXPECT_EQ(fake().cleanUps, fake().startUps);
      }
      EXPECT_GT(n, 2) << c.name;
    }
  }
}

// What a host calls without a controller.
TEST_F(Memory, RunsOutInTheHelpers) {
  const std::string text(100, ',');
  char frameBytes[] = "\xAA\xFF\xFF\x08\x01\xCC\x4E\x42";
  const std::function<void()> calls[] = {
      [&] { split(text, ","); },
      [&] { format_string("%s", text.c_str()); },
      [&] { string_To_UTF8(text); },
      [&] { UTF8_To_string(text); },
      [&] { toviStoll(text); },
      [&] { get_current_time_s(); },
      [&] { tovi_info("%s", text.c_str()); },
      [&] { createEmptyFile("/dev/null"); },
      [&] { writeFileAppend("/dev/null", "x", 1); },
      [&] {
        char* content = readFile("/proc/self/status");
        deleteArry(&content);
      },
      [&] { ToviTraffic traffic(kIp, 1); },
      [&] {
        int length = 0;
        char* bytes = makeSendPacketEx(1, frameBytes, 8, 2, frameBytes, &length);
        EXPECT_EQ(length == 0, bytes == nullptr);
        deleteArry(&bytes);
      },
      [&] {
        char key[] = "12345678";
        ProtocalParser parser(key, 3);
        for (int i = 0; i < 2; ++i) {
          char* package = parser.recvProc(frameBytes, 5 + i, 0x08);
          deleteArry(&package);
        }
      },
      [&] {
        SocketResult result(nullptr, 0);
        SocketResult whole(new (std::nothrow) char[40](), 40);
        char* copy = whole.toStrChar(1);
        deleteArry(&copy);
        whole.toStr(0);
        whole.toStrT(0);
      },
  };
  for (const auto& call : calls) {
    for (const bool fromThenOn : {false, true}) {
      for (long n = 1;; ++n) {
        {
          const FailingMemory failing(n, fromThenOn);
          EXPECT_NO_THROW(call());
        }
        if (!FailingMemory::struck()) break;
      }
    }
  }
}

// A reply that was found reaches the caller, and nothing is released twice.
TEST_F(Memory, RunsOutWhileBytesAreKept) {
  const std::string bytes = frame("08 01") + frame("08 01");
  for (long n = 1; n < 12; ++n) {
    ProtocalParser parser;
    std::string copy = bytes;
    char* package = nullptr;
    {
      const FailingMemory failing(n, false);
      package = parser.recvProc(copy.data(), static_cast<int>(copy.size()), 0x08);
    }
    if (package != nullptr) {
      EXPECT_EQ(parser.getPackageLen(), 2);
    }
    deleteArry(&package);
    package = parser.recvProc(copy.data(), static_cast<int>(copy.size()), 0x08);
    EXPECT_NE(package, nullptr);
    deleteArry(&package);
  }
}

}  // namespace
}  // namespace tovi::test
