// SPDX-License-Identifier: MIT
#include "tests/support/fake_platform_test.h"
#include "tests/support/hex.h"
#include "tests/support/wire.h"

#include <tovisdk/tovisdk.h>

namespace {

using tovi::test::FakePlatformTest;
using tovi::test::frame;
using tovi::test::hex;
using tovi::test::toHex;
using tovi::test::unframe;

class Playlists : public FakePlatformTest {
 protected:
  void acceptPlaylist() {
    fake().sent.clear();
    fake().incoming.clear();
    for (const char* reply : {"12 01", "14 01 00 01", "F9 01", "1C 01"}) {
      fake().arrive(frame(reply));
    }
  }

  ToviTraffic mTraffic{"127.0.0.1", 5005};
};

TEST_F(Playlists, AreUploadedAndPlayed) {
  acceptPlaylist();
  EXPECT_EQ(mTraffic.sendPlayList(5, "[all]\r\nitems=0\r\n"), 1);
  ASSERT_EQ(fake().sent.size(), 3u);
  EXPECT_EQ(toHex(fake().sent[0]), "AA FF FF 11 FF FF 70 6C 61 79 30 30 35 2E 6C 73 74 CC F6 8B");
  EXPECT_EQ(toHex(fake().sent[1]),
            "AA FF FF 13 01 00 5B 61 6C 6C 5D 0D 0A 69 74 65 6D 73 3D 30 0D 0A CC BA B3");
  EXPECT_EQ(toHex(fake().sent[2]), "AA FF FF 1B 05 CC DF 4F");
  EXPECT_TRUE(fake().logged("info sendPlayList start"));
}

TEST_F(Playlists, HaveNamesOfElevenCharacters) {
  struct {
    int number;
    const char* name;
    const char* played;
  } const cases[] = {{0, "play000.lst", "1B 00"},    {42, "play042.lst", "1B 2A"},
                     {999, "play999.lst", "1B E7"},  {1000, "play001.lst", "1B 01"},
                     {1998, "play000.lst", "1B 00"}, {-5, "play-05.lst", "1B FB"},
                     {-100, "play-100.ls", "1B 9C"}};
  for (const auto& c : cases) {
    acceptPlaylist();
    EXPECT_EQ(mTraffic.sendPlayList(c.number, "x"), 1) << c.number;
    ASSERT_EQ(fake().sent.size(), 3u);
    EXPECT_EQ(hex(unframe(fake().sent[0])), std::string("\x11\xFF\xFF") + c.name);
    EXPECT_EQ(unframe(fake().sent[2]), c.played);
  }
}

TEST_F(Playlists, EndBeforeAnythingIsSentWithoutATextOrAConnection) {
  EXPECT_EQ(mTraffic.sendPlayList(1, nullptr), -15);
  EXPECT_EQ(mTraffic.lastOutcome(), ToviOutcome::RefusedArgument);
  EXPECT_EQ(fake().opened, 0);
  fake().connectFails = true;
  EXPECT_EQ(mTraffic.sendPlayList(1, "x"), -14);
  EXPECT_EQ(mTraffic.lastOutcome(), ToviOutcome::NoConnection);
  EXPECT_TRUE(fake().sent.empty());
}

}  // namespace
