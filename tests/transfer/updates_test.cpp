// SPDX-License-Identifier: MIT
// The operations of one exchange, and downloads.
#include "tests/device/call_table.h"
#include "tests/support/fake_platform_test.h"
#include "tests/support/wire.h"

#include <iostream>
#include <sstream>

namespace tovi::test {

static std::string show(const std::list<int>& numbers) {
  std::string text;
  for (const int number : numbers) text += show(number) + ",";
  return text;
}

static std::string show(const std::list<std::string>& names) {
  std::string text;
  for (const std::string& name : names) text += "<" + name + ">";
  return text;
}

const Answers kDownload = {"false",
                           {{"AB 01", "true"},
                            {"AB 02 | AB 02 63 | AB 02 | AB 02 | AB 01", "true"},
                            {"AB 02 | AB 00 | AB 01", "false", Rejected},
                            {"AB | AB 01", "false", BadReply},
                            {"AB 02", "false", NoReply}}};

const std::vector<Call> kTransferCalls = {
    {CALL(playListById(0x1C8)), "1B C8", setting("1C")},
    {CALL(deletePlaylistById(7)), "AE 07", flag("AE")},
    {CALL(getAllPlaylistId()), "A7", answers("", {{"A7 01 05 E7 00", "1,5,-25,0,"}, {"A7", ""}})},
    {CALL(getAllMediaFileName()), "B0",
     answers("", {{with("B0 01", R"(["a.b","限",7,""])"), "<a.b><限><>"},
                  {with("B0 00", "[]"), "", Rejected},
                  {with("B0 01", R"({"a":1})"), "", BadReply},
                  {with("B0 01", R"(["a")"), "", BadReply},
                  {"B0 01", "", BadReply}})},
    {CALL(getFileListName(3)), "B9 03", answers("", {{with("B9 01", R"(["x"])"), "<x>"}})},
    {CALL(sendLocalUpdate(0x102, "/u")), "88 01 02 2F 75", setting("89")},
    {CALL(sendLocalUpdate(2, nullptr)), "", {"-15"}},
    {CALL(sendTestLocalUpdate(0x102, "/u")), "88 02 FE 2F 75", setting("89")},
    {CALL(sendTestLocalUpdate(2, nullptr)), "", {"-15"}},
    {CALL(removeLocalUpdate(0x12C)), "88 00 2C", setting("89")},
    {CALL(sendFtpDownloadaddress("f:/")), "49 66 3A 2F", setting("50")},
    {CALL(updateFileName(std::string("a\0b", 3))), "90 61 00 62", setting("91")},
    {CALL(cleanUpFiles(0)), "7C 00", setting("7D")},
    {CALL(cleanUpFiles(3)), "7C 03", setting("7D")},
    {CALL(cleanUpFiles(4)), "7C 01", setting("7D")},
    {CALL(cleanUpFiles(-1)), "7C 01", setting("7D")},
    {CALL(clearCache()), "EF 15 01", confirmation("EF 15 01")},
    {CALL(downloadFiles("[]")), "AB 5B 5D", kDownload},
};

namespace {

class Downloads : public FakePlatformTest {
 protected:
  ToviTraffic mTraffic{"127.0.0.1", 5005};
};

TEST_F(Downloads, SayOnTheStandardOutputWhyTheyCannotBegin) {
  std::ostringstream output;
  std::streambuf* const before = std::cout.rdbuf(output.rdbuf());
  fake().sendFails = true;
  EXPECT_FALSE(mTraffic.downloadFiles("[]"));
  EXPECT_TRUE(fake().receiveSizes.empty());
  fake().connectFails = true;
  EXPECT_FALSE(mTraffic.downloadFiles("[]"));
  std::cout.rdbuf(before);
  EXPECT_EQ(output.str(), "send SOCKET_ERROR\nsocket == NULL\n");
}

TEST_F(Downloads, ThatAreNeverDoneAreGivenUp) {
  tovi_set_log_level(4);
  const std::string goesOn = frame("AB 02");
  for (int i = 0; i < 100001; ++i) fake().arrive(goesOn);
  EXPECT_FALSE(mTraffic.downloadFiles("[]"));
  EXPECT_EQ(mTraffic.lastOutcome(), NoReply);
  EXPECT_EQ(fake().incoming.size(), 1u);
  EXPECT_EQ(fake().closed, 1);
}

}  // namespace

}  // namespace tovi::test
