// SPDX-License-Identifier: MIT
#include <tovisdk/log.h>

#include "tests/support/fake_platform_test.h"

namespace {

using tovi::test::FakePlatformTest;

class LogTest : public FakePlatformTest {
 protected:
  static constexpr char kFile[] = "/host/bin/log/tovisdk_2024-01-05.txt";

  void showTime(int day, int hour, int minute, int second) {
    ++fake().now;
    fake().localTime.tm_mday = day;
    fake().localTime.tm_hour = hour;
    fake().localTime.tm_min = minute;
    fake().localTime.tm_sec = second;
  }
};

TEST_F(LogTest, RecordsAreStampedAndEndTwiceInTheFileOfTheirDay) {
  showTime(5, 23, 59, 7);
  tovi_info("ToviTraffic::recv start");
  tovi_debug("volume %d of %s", 7, "sign");
  tovi_warnning("careful");
  showTime(6, 0, 0, 0);
  tovi_error("100%%");
  EXPECT_EQ(fake().files[kFile],
            "2024-01-05 23:59:07 info ToviTraffic::recv start\n\n"
            "2024-01-05 23:59:07 debug volume 7 of sign\n\n"
            "2024-01-05 23:59:07 warn careful\n\n");
  EXPECT_EQ(fake().files["/host/bin/log/tovisdk_2024-01-06.txt"],
            "2024-01-06 00:00:00 error 100%\n\n");
  EXPECT_EQ(get_current_time_s(), "2024-01-06 00:00:00");
}

TEST_F(LogTest, EachLevelHasItsLimit) {
  const std::vector<std::string> all = {"info i", "debug d", "warn w", "error e"};
  for (int threshold = 0; threshold <= 4; ++threshold) {
    fake().files.clear();
    tovi_set_log_level(threshold);
    tovi_info("i");
    tovi_debug("d");
    tovi_warnning("w");
    tovi_error("e");
    EXPECT_EQ(fake().log(), std::vector<std::string>(all.begin() + threshold, all.end()));
  }
}

TEST_F(LogTest, LongMessagesAreCutToTheBuffer) {
  for (const std::size_t length : {1023u, 1024u, 2030u, 65534u, 65535u, 200000u}) {
    fake().files.clear();
    tovi_info("%s", std::string(length, 'x').c_str());
    const std::size_t kept = std::min<std::size_t>(length, 65534);
    EXPECT_EQ(fake().log(), std::vector<std::string>{"info " + std::string(kept, 'x')}) << length;
  }
}

TEST_F(LogTest, TheFolderIsMadeOnlyWhenItIsMissing) {
  tovi_info("there");
  EXPECT_TRUE(fake().madeFolders.empty());
  fake().folders.clear();
  tovi_info("gone");
  tovi_info("again");
  EXPECT_EQ(fake().madeFolders, std::vector<std::string>{"/host/bin/log/"});
  EXPECT_EQ(fake().log().size(), 3u);
}

TEST_F(LogTest, TheHostMayMoveTheFolder) {
  fake().folders.insert("/elsewhere/");
  tovi_set_log_folder("/elsewhere");
  tovi_info("moved");
  EXPECT_EQ(fake().files.count("/elsewhere/tovisdk_2024-01-05.txt"), 1u);
  const std::string longest(1000, 'x');
  tovi_set_log_folder((longest + "x").c_str());
  EXPECT_TRUE(fake().logged("error tovi_set_log_folder folder is longer than 1000 bytes"));
  tovi_set_log_folder(longest.c_str());
  tovi_info("far");
  EXPECT_EQ(fake().files.count(longest + "/tovisdk_2024-01-05.txt"), 1u);
  tovi_set_log_folder("");
  tovi_info("back");
  EXPECT_EQ(fake().files.count(kFile), 1u);
}

TEST_F(LogTest, AMessageEndsAtItsFirstZeroByte) {
  tovi_error("result = %c, more", '\0');
  tovi_info("%s%c%s", std::string(2000, 'x').c_str(), '\0', "more");
  EXPECT_EQ(fake().log(),
            (std::vector<std::string>{"error result = ", "info " + std::string(2000, 'x')}));
}

TEST_F(LogTest, WithoutAFolderRecordsAreLostInSilence) {
  fake().folders.clear();
  fake().foldersCanBeMade = false;
  tovi_error("nowhere");
  fake().madeFolders.clear();
  fake().executableFolder.clear();
  tovi_set_log_folder(nullptr);
  tovi_error("nowhere");
  EXPECT_TRUE(fake().files.empty());
  EXPECT_TRUE(fake().madeFolders.empty());
  // Nor is one that no path can have, with the "log/" that stands behind it.
  fake().foldersCanBeMade = true;
  for (const std::size_t length : {4093u, 4092u}) {
    fake().executableFolder.assign(length, 'x');
    tovi_set_log_folder(nullptr);
    tovi_error("far");
    EXPECT_EQ(fake().files.empty(), length > 4092);
  }
}

TEST_F(LogTest, AFileThatIsFullIsSetAside) {
  const std::string first = "2024-01-05 00:00:00 info 1234567890\n\n";
  constexpr char kAside[] = "/host/bin/log/tovisdk_2024-01-05.1.txt";
  tovi_set_log_limit(1);
  tovi_info("1234567890");
  EXPECT_EQ(fake().files.count(kAside), 0u) << "there is nothing to set aside";
  tovi_set_log_limit(static_cast<long long>(2 * first.size()));
  tovi_info("1234567890");
  EXPECT_EQ(fake().files.count(kAside), 0u) << "just as long as it may be";
  tovi_info("third");
  EXPECT_EQ(fake().files[kAside], first + first);
  EXPECT_EQ(fake().files[kFile], "2024-01-05 00:00:00 info third\n\n");
  tovi_info("%s", std::string(500, 'x').c_str());
  EXPECT_EQ(fake().files[kAside], "2024-01-05 00:00:00 info third\n\n");
  tovi_set_log_limit(0);
  for (int i = 0; i < 3; ++i) tovi_info("%s", std::string(500, 'x').c_str());
  EXPECT_GT(fake().files[kFile].size(), 2000u);
}

struct Heard {
  std::vector<std::string> records;
  static void record(void* user, int level, const char* text) {
    auto& records = static_cast<Heard*>(user)->records;
    records.push_back(std::to_string(level) + " " + text);
    tovi_info("of the callback's own");  // which would go on for ever
  }
};

TEST_F(LogTest, TheHostMayTakeTheRecords) {
  Heard heard;
  tovi_set_log_callback(Heard::record, &heard);
  tovi_info("i");
  tovi_debug("d");
  tovi_warnning("%s", "w");
  tovi_set_log_level(3);
  tovi_warnning("below the threshold");
  tovi_error("e");
  EXPECT_TRUE(fake().files.empty());
  tovi_set_log_callback(nullptr, nullptr);
  tovi_error("to the file again");
  EXPECT_EQ(heard.records, (std::vector<std::string>{"0 i", "1 d", "2 w", "3 e"}));
  EXPECT_EQ(fake().log(), std::vector<std::string>{"error to the file again"});
}

}  // namespace
