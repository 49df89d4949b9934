// SPDX-License-Identifier: MIT
// What people type: hosts, numbers, times.
#include <gtest/gtest.h>

#include "cli/hosts.h"
#include "cli/progress.h"
#include "cli/times.h"

namespace tovi::cli {
namespace {

TEST(Hosts, AreOneALineBesideComments) {
  const auto hosts = parseHosts(
      "\xEF\xBB\xBF# entrance\r\n"
      "192.168.1.10:5005\r\n"
      "\n"
      "  roof.example:5006\t# roof\n"
      "192.168.1.12:5007");
  std::string all;
  for (const tools::Endpoint& host : hosts) all += tools::endpointText(host) + " ";
  EXPECT_EQ(all, "192.168.1.10:5005 roof.example:5006 192.168.1.12:5007 ");
}

TEST(Time, MustExist) {
  for (const char* text :
       {"", "2024-03-01", "2024-03-01 08:00:00", "2024-03-01T08:00", "2024-03-01T08:00:00Z",
        "2023-02-29T00:00:00", "2024-13-01T00:00:00", "2024-00-01T00:00:00", "2024-01-00T00:00:00",
        "2024-04-31T00:00:00", "2024-01-01T24:00:00", "2024-01-01T00:60:00", "2024-01-01T00:00:60",
        "1899-12-31T00:00:00", "2024-1-001T00:00:00", "+024-01-01T00:00:00"}) {
    EXPECT_FALSE(parseTime(text)) << text;
  }
}

TEST(Time, IsMillisecondsInUtc) {
  const struct {
    const char* text;
    long long milliseconds;
  } cases[] = {{"1970-01-01T00:00:00", 0},
               {"2024-02-29T23:59:59", 1'709'251'199'000},
               {"1969-12-31T23:59:59", -1000}};
  for (const auto& [text, milliseconds] : cases) {
    EXPECT_EQ(utcMilliseconds(parseTime(text).value()), milliseconds);
    EXPECT_EQ(utcText(milliseconds), std::string(text) + "Z");
  }
  EXPECT_EQ(timeText({}), "1900-01-00T00:00:00");
  EXPECT_EQ(utcText(999), "1970-01-01T00:00:00Z");
  EXPECT_EQ(utcText(-1), "1969-12-31T23:59:59Z");
  EXPECT_EQ(utcText(253'402'300'799'999), "9999-12-31T23:59:59Z");
  EXPECT_EQ(utcText(253'402'300'800'000), "253402300800000");
  EXPECT_EQ(utcText(-9'223'372'036'854'775'807 - 1), "-9223372036854775808");
}

TEST(Progress, TellsShareRateAndRest) {
  EXPECT_EQ(progressText(0, 1000, 0),
            "  0% [>                             ]  0.0 kB/s  --:-- left");
  EXPECT_EQ(progressText(3'000'000, 9'000'000, 2),
            " 33% [==========>                   ]  1.5 MB/s  0:04 left");
  EXPECT_EQ(progressText(1000, 8'000'000, 1),
            "  0% [>                             ]  1.0 kB/s  2:13:19 left");
  EXPECT_EQ(progressText(500, 500, 1),
            "100% [==============================]  0.5 kB/s  0:00 left");
  // A file that was empty, and one that has grown meanwhile.
  EXPECT_EQ(progressText(0, 0, 0), "100% [==============================]  0.0 kB/s  0:00 left");
  EXPECT_EQ(progressText(20, 10, 1), "100% [==============================]  0.0 kB/s  0:00 left");
}

}  // namespace
}  // namespace tovi::cli
