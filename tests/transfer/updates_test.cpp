// SPDX-License-Identifier: MIT
// The operations of one exchange, and downloads.
#include "tests/device/call_table.h"
#include "tests/support/fake_platform_test.h"
#include "tests/support/wire.h"

#include <iostream>
#include <sstream>

namespace tovi::test {
namespace {

using T = ToviTraffic;

std::string shown(const std::list<int>& numbers) {
  std::string text;
  for (const int number : numbers) text += show(number) + ",";
  return text;
}

std::string shown(const std::list<std::string>& names) {
  std::string text;
  for (const std::string& name : names) text += "<" + name + ">";
  return text;
}

const Call kCalls[] = {
    {"playListById", [](T& t) { return show(t.playListById(0x1C8)); }, "1B C8", "1C 01", "1"},
    {"deletePlaylistById", [](T& t) { return show(t.deletePlaylistById(7)); }, "AE 07", "AE 01",
     "true"},
    {"deletePlaylistById refused", [](T& t) { return show(t.deletePlaylistById(7)); }, "AE 07",
     "AE 00", "false", Rejected},
    {"getAllPlaylistId", [](T& t) { return shown(t.getAllPlaylistId()); }, "A7", "A7 01 05 E7 00",
     "1,5,-25,0,"},
    {"getAllPlaylistId none", [](T& t) { return shown(t.getAllPlaylistId()); }, "A7", "A7", ""},
    {"getAllMediaFileName", [](T& t) { return shown(t.getAllMediaFileName()); }, "B0",
     "B0 01 5B 22 61 2E 62 22 2C 22 E9 99 90 22 2C 37 2C 22 22 5D",  // ["a.b","限",7,""]
     "<a.b><限><>"},
    {"getAllMediaFileName refused", [](T& t) { return shown(t.getAllMediaFileName()); }, "B0",
     "B0 00 5B 5D", "", Rejected},
    {"getAllMediaFileName of no array", [](T& t) { return shown(t.getAllMediaFileName()); }, "B0",
     "B0 01 7B 22 61 22 3A 31 7D", "", BadReply},
    {"getAllMediaFileName cut short", [](T& t) { return shown(t.getAllMediaFileName()); }, "B0",
     "B0 01 5B 22 61 22", "", BadReply},
    {"getFileListName", [](T& t) { return shown(t.getFileListName(3)); }, "B9 03",
     "B9 01 5B 22 78 22 5D", "<x>"},
    {"sendLocalUpdate", [](T& t) { return show(t.sendLocalUpdate(0x102, "/u")); }, "88 01 02 2F 75",
     "89 01", "1"},
    {"sendLocalUpdate null", [](T& t) { return show(t.sendLocalUpdate(2, nullptr)); }, "", "",
     "-15", RefusedArgument},
    {"sendTestLocalUpdate", [](T& t) { return show(t.sendTestLocalUpdate(2, "/u")); },
     "88 02 FE 2F 75", "89 01", "1"},
    {"sendTestLocalUpdate null", [](T& t) { return show(t.sendTestLocalUpdate(2, nullptr)); }, "",
     "", "-15", RefusedArgument},
    {"removeLocalUpdate", [](T& t) { return show(t.removeLocalUpdate(0x12C)); }, "88 00 2C",
     "89 01", "1"},
    {"sendFtpDownloadaddress", [](T& t) { return show(t.sendFtpDownloadaddress("f:/")); },
     "49 66 3A 2F", "50 01", "1"},
    {"sendFtpDownloadaddress empty", [](T& t) { return show(t.sendFtpDownloadaddress("")); }, "",
     "", "-15", RefusedArgument},
    {"sendFtpDownloadaddress too long",
     [](T& t) { return show(t.sendFtpDownloadaddress(std::string(1025, 'u'))); }, "", "", "-15",
     RefusedArgument},
    {"updateFileName", [](T& t) { return show(t.updateFileName(std::string("a\0b", 3))); },
     "90 61 00 62", "91 01", "1"},
    {"cleanUpFiles all", [](T& t) { return show(t.cleanUpFiles(0)); }, "7C 00", "7D 01", "1"},
    {"cleanUpFiles last", [](T& t) { return show(t.cleanUpFiles(3)); }, "7C 03", "7D 01", "1"},
    {"cleanUpFiles above", [](T& t) { return show(t.cleanUpFiles(4)); }, "7C 01", "7D 01", "1"},
    {"cleanUpFiles below", [](T& t) { return show(t.cleanUpFiles(-1)); }, "7C 01", "7D 01", "1"},
    {"clearCache", [](T& t) { return show(t.clearCache()); }, "EF 15 01", "EF 15 01 01", "1"},
    {"clearCache refused", [](T& t) { return show(t.clearCache()); }, "EF 15 01", "EF 15 01 00",
     "0", Rejected},
    {"clearCache silent", [](T& t) { return show(t.clearCache()); }, "EF 15 01", "", "-1", NoReply},
    {"downloadFiles", [](T& t) { return show(t.downloadFiles("[]")); }, "AB 5B 5D", "AB 01",
     "true"},
    {"downloadFiles in progress", [](T& t) { return show(t.downloadFiles("[]")); }, "AB 5B 5D",
     "AB 02 | AB 02 63 | AB 02 | AB 02 | AB 01", "true"},
    {"downloadFiles refused", [](T& t) { return show(t.downloadFiles("[]")); }, "AB 5B 5D",
     "AB 02 | AB 00 | AB 01", "false", Rejected},
    {"downloadFiles without status", [](T& t) { return show(t.downloadFiles("[]")); }, "AB 5B 5D",
     "AB | AB 01", "false", BadReply},
    {"downloadFiles that fall silent", [](T& t) { return show(t.downloadFiles("[]")); }, "AB 5B 5D",
     "AB 02", "false", NoReply},

};

class Updates : public FakePlatformTest {};

// What goes to the standard output while this lives.
class Output {
 public:
  Output() : mBefore(std::cout.rdbuf(mText.rdbuf())) {}
  ~Output() { std::cout.rdbuf(mBefore); }
  Output(const Output&) = delete;
  Output& operator=(const Output&) = delete;
  std::string text() const { return mText.str(); }

 private:
  std::ostringstream mText;
  std::streambuf* mBefore;
};

TEST_F(Updates, DownloadsSayOnTheStandardOutputWhyTheyCannotBegin) {
  ToviTraffic traffic("127.0.0.1", 5005);
  const Output output;
  fake().sendFails = true;
  EXPECT_FALSE(traffic.downloadFiles("[]"));
  EXPECT_EQ(traffic.lastOutcome(), ToviOutcome::SendFailed);
  EXPECT_EQ(fake().closed, 1);
  EXPECT_TRUE(fake().receiveSizes.empty());
  fake().connectFails = true;
  EXPECT_FALSE(traffic.downloadFiles("[]"));
  EXPECT_EQ(traffic.lastOutcome(), ToviOutcome::NoConnection);
  EXPECT_EQ(output.text(), "send SOCKET_ERROR\nsocket == NULL\n");
}

TEST_F(Updates, DownloadsThatAreNeverDoneAreGivenUp) {
  tovi_set_log_level(4);
  ToviTraffic traffic("127.0.0.1", 5005);
  const std::string goesOn = frame("AB 02");
  for (int i = 0; i < 100001; ++i) fake().arrive(goesOn);
  EXPECT_FALSE(traffic.downloadFiles("[]"));
  EXPECT_EQ(traffic.lastOutcome(), ToviOutcome::NoReply);
  EXPECT_EQ(fake().incoming.size(), 1u);
  EXPECT_EQ(fake().closed, 1);
}

}  // namespace

const std::span<const Call> kTransferCalls = kCalls;

}  // namespace tovi::test
