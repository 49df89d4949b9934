// SPDX-License-Identifier: MIT
// Memory that runs out at every point at which the library asks for it.
#include <gtest/gtest.h>
#include <tovisdk/flat.h>
#include <tovisdk/tovisdk.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <type_traits>

#include "tests/support/failing_memory.h"
#include "tests/support/fake_platform_test.h"
#include "tests/support/heap_probe.h"
#include "tests/support/wire.h"

namespace tovi::test {
namespace {

constexpr char kIp[] = "127.0.0.1";

// A result as a text, made with memory of the test's own; releases what is a host's.
template <class Result>
std::string owned(Result result) {
  const OwnMemory own;
  if constexpr (std::is_arithmetic_v<Result>) {
    return std::to_string(result);
  } else if constexpr (std::is_pointer_v<Result>) {
    if (result == nullptr) return "null";
    std::string text = "a record";
    if constexpr (std::is_convertible_v<Result, const char*>) text = result;
    if constexpr (std::is_same_v<Result, char*>) deleteArry(&result);
    if constexpr (!std::is_convertible_v<Result, const char*>) delete result;
    return text;
  } else {
    return "'" + result + "'";
  }
}

template <void (ToviTraffic::*setKey)(const char*)>
std::string brighten(ToviTraffic& traffic) {
  (traffic.*setKey)("12345678");
  if (traffic.lastOutcome() == ToviOutcome::OutOfMemory) return owned(-11);
  return owned(traffic.setBrightness(80));
}

struct Case {
  std::function<std::string(ToviTraffic&)> call;
  std::vector<const char*> replies;
  std::string failure;  // what the method gives without memory
};

const std::string kText(300, 't');

std::vector<Case> methods() {
  static const std::string path = (std::filesystem::temp_directory_path() / "tovi_memory").string();
  std::ofstream(path) << "content";
  return {
      {[](auto& t) { return owned(t.setPower(true)); }, {"06 01"}, "-11"},
      {[](auto& t) { return owned(t.setDeviceName(kText.c_str())); }, {"7F 01"}, "-11"},
      {[](auto& t) {
         return owned(t.setEdidInfo(EdidInfo{0, 800, 600, 60}));
       },
       {"A4 01"},
       "-11"},
      {[](auto& t) { return owned(t.setBrightnessByTimeList({})); }, {"08 01", "44 01"}, "-11"},
      {brighten<&ToviTraffic::setDesKey>, {"08 DE EC BA 37 86 7B D1 42"}, "-11"},
      {brighten<&ToviTraffic::setSM4Key>,
       {"08 36 11 51 65 43 4C D6 0E E1 2D 06 4B C6 A6 9D 38"},
       "-11"},
      {[](auto& t) { return owned(t.setDeviceKey(kText)); }, {"EF 03 01 01"}, "0"},
      {[](auto& t) { return owned(t.setPingIp(kText)); }, {"EF 01 01 01"}, "-1"},
      {[](auto& t) { return owned(t.getPowerState()); }, {"EF 14 01 01"}, "-1"},
      {[](auto& t) { return owned(t.getDeviceName()); }, {"7F 01 61 62 63"}, "null"},
      {[](auto& t) { return owned(t.getDeviceType()); },
       {"02 34 12 00 00 00 00 05 01 00 01 01 19 01 00 00 C8 02 50"},
       "null"},
      {[](auto& t) { return owned(t.getTimeAndTimeZone()); },
       {"96 31 2C 55 54 43 2C 47 4D 54"},
       "null"},
      {[](auto& t) { return owned(t.getDevicePowerByTimeList()); },
       {"52 01 02 01 E8 07 05 04 03 02 01 E9 07 05 04 03"},
       "null"},
      {[](auto& t) { return owned(t.getNowPlayContent()); }, {"2E 01 00 05 61 62"}, "null"},
      {[](auto& t) { return owned(t.getAllMediaFileName().size()); },
       {"B0 01 5B 22 61 22 2C 22 62 22 5D"},
       "0"},
      {[](auto& t) { return owned(t.getDetectErrorPointInfo()); },
       {"0C 01", "37 01 02 00", "37 61 62", "37 63"},
       "''"},
      {[](auto& t) { return owned(t.sendFile(path.c_str(), "n")); },
       {"12 01", "14 01 00 01", "F9 01"},
       "-1"},
      {[](auto& t) { return owned(t.sendPlayList(5, kText.c_str())); },
       {"12 01", "14 01 00 01", "F9 01", "1C 01"},
       "-14"},
      {[](auto& t) { return owned(t.downloadFiles(kText)); }, {"AB 02", "AB 01"}, "0"},
      {[](auto& t) { return owned(t.getDeviceScreenshot("/dev/null")); }, {"81 00 00 61 62"}, "-1"},
  };
}

class Memory : public FakePlatformTest {
 protected:
  void prepare(const std::vector<const char*>& replies) const {
    const std::set<std::string> folders = fake().folders;
    const std::time_t now = fake().now;
    fake() = FakePlatform{};
    fake().folders = folders;
    fake().now = now;
    std::string together;
    for (const char* reply : replies) together += frame(reply);
    if (mTogether) {
      fake().arrive(together);
    } else {
      for (const char* reply : replies) fake().arrive(frame(reply));
    }
  }

  // Calls once for each allocation, which then fails: alone, and with all that come after. Whatever
  // becomes of the call, nothing is sent that it does not send otherwise, and neither a connection
  // nor memory stays behind. Gives the number of allocations.
  template <class Judge>
  long strikeEach(const Case& c, Judge judge) const {
    prepare(c.replies);
    ToviTraffic unharmed(kIp, 5005);
    const std::string success = c.call(unharmed);
    const std::vector<std::string> whole = fake().sent;
    long n = 0;
    for (const bool fromThenOn : {false, true}) {
      n = 0;
      do {
        SCOPED_TRACE(success + " without allocation " + std::to_string(++n));
        prepare({});
        const long blocks = heapBlocksOfThisThread();
        {
          prepare(c.replies);
          ToviTraffic traffic(kIp, 5005);
          std::string result;
          {
            const FailingMemory failing(n, fromThenOn);
            result = c.call(traffic);
          }
          const std::vector<std::string>& sent = fake().sent;
          const auto other = std::mismatch(sent.begin(), sent.end(), whole.begin(), whole.end());
          EXPECT_TRUE(other.first == sent.end());
          EXPECT_EQ(fake().closed, fake().opened);
          EXPECT_EQ(fake().cleanUps, fake().startUps);
          if (FailingMemory::struck()) judge(traffic, result, success);
        }
        prepare({});
        EXPECT_EQ(heapBlocksOfThisThread(), blocks);
      } while (FailingMemory::struck());
    }
    return n - 1;
  }

  bool mTogether = false;  // whether replies come in one piece
};

TEST_F(Memory, RunsOutInMethods) {
  for (const Case& c : methods()) {
    const auto judge = [&](ToviTraffic& traffic, const std::string& result,
                           const std::string& success) {
      // A record that was lost costs nothing else.
      if (traffic.lastOutcome() != ToviOutcome::Done || result != success) {
        EXPECT_EQ(traffic.lastOutcome(), ToviOutcome::OutOfMemory);
        // Where an answer could not be kept, a transfer tells which one it lacked.
        EXPECT_EQ(result, mTogether && result == "-5" ? "-5" : c.failure);
      }
      traffic.discardKeptBytes();
      prepare(c.replies);
      EXPECT_EQ(c.call(traffic), success);
    };
    for (const bool together : {false, true}) {
      mTogether = together;
      EXPECT_GE(strikeEach(c, judge), 2) << c.replies.front();
    }
  }
}

struct FlatCase {
  std::string (*call)();
  std::vector<const char*> replies;
};

TEST_F(Memory, RunsOutInFlatFunctions) {
  const FlatCase flat[] = {
      {[] { return owned(setPower(kIp, 1, true)); }, {"06 01"}},
      {[] { return owned(setDeviceName(kIp, 1, "name")); }, {"7F 01"}},
      {[] { return owned(setDevicePowerByTimeList(kIp, 1, "2024-1-2-3-4-5 2025-1-2-3-4-5")); },
       {"8B 01"}},
      {[] { return owned(setBrightnessByTimeList(kIp, 1, "a b 1 c d 2")); }, {"08 01", "44 01"}},
      {[] { return owned(setBrightnessAuto(kIp, 1, "1 2 3 4")); }, {"08 01", "18 01"}},
      {[] { return owned(setTime(kIp, 1, "124-0-2-3-4-5")); }, {"0A 01"}},
      {[] { return owned(setTimeAndTimeZone(kIp, 1, 1, "Asia/Shanghai", "GMT+08:00")); },
       {"95 01"}},
      {[] { return owned(setDeviceNTPParam(kIp, 1, 1, "ntp.example.org.long")); }, {"97 01"}},
      {[] { return owned(setEdidInfo(kIp, 1, "1 800 600 60")); }, {"A4 01"}},
      {[] { return owned(setDeviceSecretParam(kIp, 1, "label 0 1  12345678", true)); }, {"71 01"}},
      {[] { return owned(setDeviceNetBasicParam(kIp, 1, "192.168.1.2", "255.0.0.0", "", 1, "")); },
       {}},
      {[] { return owned(sendPlayList(kIp, 1, 5, "text")); },
       {"12 01", "14 01 00 01", "F9 01", "1C 01"}},
      {[] { return owned(getScreenStatus(kIp, 1)); }, {"BA 01"}},
      {[] { return owned(getDeviceName(kIp, 1)); }, {"7F 01 E9 99 90 61 62 63"}},
      {[] { return owned(getDeviceType(kIp, 1)); },
       {"02 34 12 00 00 00 00 05 01 00 01 01 19 01 00 00 C8 02 50"}},
      {[] { return owned(getBrightnessByTimeList(kIp, 1)); },
       {"51 01 02 01 E8 07 05 04 03 02 01 E9 07 05 04 03 09"}},
      {[] { return owned(getFileListName(kIp, 1, 2)); }, {"B9 01 5B 22 61 22 5D"}},
      {[] { return owned(getAllPlaylistId(kIp, 1)); }, {"A7 01 02"}},
      {[] { return owned(getEdidInfo(kIp, 1)); }, {"A2 01 7B 22 77 69 64 74 68 22 3A 38 7D"}},
      {[] { return owned(getDetectErrorPointInfo(kIp, 1)); }, {"0C 01", "37 01 01 00", "37 61 62"}},
  };
  for (const FlatCase& c : flat) {
    prepare({});
    const std::string failure = c.call();
    const auto judge = [&](ToviTraffic&, const std::string& result, const std::string& success) {
      EXPECT_TRUE(result == success || result == failure || result == "null") << result;
    };
    EXPECT_GE(strikeEach({[&](ToviTraffic&) { return c.call(); }, c.replies, ""}, judge), 2);
  }
}

// What a host calls without a controller.
TEST_F(Memory, RunsOutInTheHelpers) {
  char frameBytes[] = "\xAA\xFF\xFF\x08\x01\xCC\x4E\x42";
  const std::function<void()> calls[] = {
      [&] { split(kText, "tt"); },
      [&] { format_string("%s", kText.c_str()); },
      [&] { string_To_UTF8(kText); },
      [&] { UTF8_To_string(kText); },
      [&] { toviStoll(kText); },
      [&] { get_current_time_s(); },
      [&] { tovi_info("%s", kText.c_str()); },
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
    const auto nothing = [](const auto&...) {};
    strikeEach({[&](ToviTraffic&) { return call(), std::string(); }, {}, ""}, nothing);
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
      deleteArry(&package);
      continue;
    }
    EXPECT_EQ(parser.getPackageLen(), 0);
    // Both, when they are given again, and none twice.
    int found = 0;
    int size = static_cast<int>(copy.size());
    while ((package = parser.recvProc(copy.data(), size, 0x08)) != nullptr) {
      ++found;
      size = 0;
      deleteArry(&package);
    }
    EXPECT_EQ(found, 2) << n;
  }
}

}  // namespace
}  // namespace tovi::test
