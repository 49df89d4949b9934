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

TEST_F(LogTest, RecordsAreStampedAndEndTwice) {
  showTime(5, 9, 3, 7);
  tovi_info("ToviTraffic::recv start");
  tovi_debug("volume %d of %s", 7, "sign");
  tovi_warnning("careful");
  tovi_error("100%%");
  EXPECT_EQ(fake().files[kFile],
            "2024-01-05 09:03:07 info ToviTraffic::recv start\n\n"
            "2024-01-05 09:03:07 debug volume 7 of sign\n\n"
            "2024-01-05 09:03:07 warn careful\n\n"
            "2024-01-05 09:03:07 error 100%\n\n");
  EXPECT_EQ(get_current_time_s(), "2024-01-05 09:03:07");
}

TEST_F(LogTest, EachDayHasItsFile) {
  showTime(5, 23, 59, 59);
  tovi_info("before");
  showTime(6, 0, 0, 0);
  tovi_info("after");
  EXPECT_EQ(fake().files[kFile], "2024-01-05 23:59:59 info before\n\n");
  EXPECT_EQ(fake().files["/host/bin/log/tovisdk_2024-01-06.txt"],
            "2024-01-06 00:00:00 info after\n\n");
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
  for (const std::size_t length : {1023u, 1024u, 65534u, 65535u, 200000u}) {
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

TEST_F(LogTest, ARecordThatCannotBeWrittenIsLostInSilence) {
  fake().folders.clear();
  fake().foldersCanBeMade = false;
  tovi_error("nowhere");
  EXPECT_TRUE(fake().files.empty());
}

TEST_F(LogTest, TheHostMayMoveTheFolder) {
  fake().folders.insert("/elsewhere/");
  tovi_set_log_folder("/elsewhere");
  tovi_info("moved");
  EXPECT_EQ(fake().files.count("/elsewhere/tovisdk_2024-01-05.txt"), 1u);
  tovi_set_log_folder(std::string(2000, 'x').c_str());
  EXPECT_TRUE(fake().logged("error tovi_set_log_folder folder is longer than 1000 bytes"));
  tovi_set_log_folder("");
  tovi_info("back");
  EXPECT_EQ(fake().files.count(kFile), 1u);
}

}  // namespace
