// What people type: addresses, keys, numbers, times.
#include <gtest/gtest.h>

#include "cli/endpoint.h"
#include "cli/progress.h"
#include "cli/reading.h"
#include "cli/terminal.h"
#include "cli/times.h"

namespace tovi::cli {
namespace {

TEST(Endpoint, TakesDottedIpv4AndPort) {
  for (const char* text : {"192.168.1.10:5005", "0.0.0.0:1", "255.255.255.255:65535"}) {
    const auto endpoint = parseEndpoint(text);
    ASSERT_TRUE(endpoint) << text;
    EXPECT_EQ(endpointText(*endpoint), text);
  }
  for (const char* text :
       {"", ":", "192.168.1.10", "192.168.1.10:", "192.168.1.10:0", "192.168.1.10:65536",
        "192.168.1.10:-1", "192.168.1.10:+1", "192.168.1.10: 1", "192.168.1.10:5x",
        "192.168.1:5005", "192.168.1.1.1:5005", "192.168..1:5005", "192.168.1.256:5005",
        "192.168.1.010:5005", "192.168.1.-1:5005", "host:5005", "[::1]:5005",
        "192.168.1.10:99999999999999999999"}) {
    EXPECT_FALSE(parseEndpoint(text)) << text;
  }
}

TEST(Endpoint, ListensOnEveryAddressUnlessOneIsGiven) {
  EXPECT_EQ(endpointText(parseListenEndpoint("5005").value()), "0.0.0.0:5005");
  EXPECT_EQ(endpointText(parseListenEndpoint("127.0.0.1:0").value()), "127.0.0.1:0");
  for (const char* text : {"", "65536", "localhost:1", "127.0.0.1:", "5005x"}) {
    EXPECT_FALSE(parseListenEndpoint(text)) << text;
  }
}

TEST(Hosts, AreOneALineBesideComments) {
  const auto hosts = parseHosts(
      "\xEF\xBB\xBF# entrance\r\n"
      "192.168.1.10:5005\r\n"
      "\n"
      "  192.168.1.11:5006\t# roof\n"
      "192.168.1.12:5007");
  std::string all;
  for (const Endpoint& host : hosts) all += endpointText(host) + " ";
  EXPECT_EQ(all, "192.168.1.10:5005 192.168.1.11:5006 192.168.1.12:5007 ");
  EXPECT_TRUE(parseHosts("").empty());
  EXPECT_TRUE(parseHosts("#192.168.1.10:5005").empty());
}

TEST(Hosts, TellTheLineThatIsWrong) {
  try {
    parseHosts("# two lines\n192.168.1.10:5005\n\n192.168.1.11\n");
    FAIL();
  } catch (const Unusable& error) {
    EXPECT_STREQ(error.what(), "line 4: \"192.168.1.11\" is no IPv4 address and port");
  }
}

TEST(Key, IsACipherAndEightCharacters) {
  EXPECT_EQ(parseKey("des:12345678").value().cipher, Key::Cipher::Des);
  EXPECT_EQ(parseKey("aes:12345678").value().cipher, Key::Cipher::Aes);
  EXPECT_EQ(parseKey("sm4:12345678").value().cipher, Key::Cipher::Sm4);
  EXPECT_EQ(parseKey("des:a:b c\"d#").value().password, "a:b c\"d#");
  for (const char* text : {"", "des", "des:", "des:1234567", "des:123456789", "DES:12345678",
                           "rsa:12345678", ":12345678", "12345678", "des12345678"}) {
    EXPECT_FALSE(parseKey(text)) << text;
  }
}

TEST(Number, CountsEveryCharacter) {
  EXPECT_EQ(numberWithin("0", 0, 255), 0);
  EXPECT_EQ(numberWithin("255", 0, 255), 255);
  EXPECT_EQ(numberWithin("2147483647", 0, 2147483647), 2147483647);
  for (const char* text :
       {"", "-1", "-0", "+1", " 1", "1 ", "1.5", "0x10", "256", "4294967296", "one"}) {
    EXPECT_THROW(numberWithin(text, 0, 255), Unusable) << text;
  }
  EXPECT_THROW(numberWithin("59", 60, 65535), Unusable);
}

TEST(Time, IsATmInsideAndCalendarOutside) {
  const auto time = parseTime("2024-02-29T23:59:58");
  ASSERT_TRUE(time);
  EXPECT_EQ(time->tm_year, 124);
  EXPECT_EQ(time->tm_mon, 1);
  EXPECT_EQ(time->tm_mday, 29);
  EXPECT_EQ(time->tm_hour, 23);
  EXPECT_EQ(time->tm_min, 59);
  EXPECT_EQ(time->tm_sec, 58);
  EXPECT_EQ(timeText(*time), "2024-02-29T23:59:58");
  EXPECT_EQ(timeText({}), "1900-01-00T00:00:00");
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

TEST(Terminal, IsKeptFromControlCharacters) {
  const struct {
    std::string told, shown;
  } cases[] = {
      {"\xE9\x99\x90 80 \xC3\xA9\xC2\xA0", "\xE9\x99\x90 80 \xC3\xA9\xC2\xA0"},
      {"a\tb\nc", "a\tb\nc"},
      {"\x1B[2J\x1B]0;title\x07", "?[2J?]0;title?"},
      {std::string("\r\0\x7F", 3), "???"},
      {"\xC2\x9B"
       "2J\xC2\x85\xC2\x9F",
       "?2J??"},
      {"\xC2", "\xC2"},
  };
  for (const auto& [told, shown] : cases) EXPECT_EQ(harmless(told), shown);
}

}  // namespace
}  // namespace tovi::cli
