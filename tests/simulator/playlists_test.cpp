// SPDX-License-Identifier: MIT
// Playlists and what the screen tells of the one that plays.
#include "tests/simulator/uploads.h"

namespace tovi::sim {
namespace {

using PlaylistsTest = Uploads;

TEST_F(PlaylistsTest, PlayAsNowPlayingTells) {
  EXPECT_EQ(ask(0x2D), "2E: 02 00 00");
  EXPECT_EQ(ask(0x3A), "3B: 00");
  EXPECT_EQ(ask(0xA7), "A7:");
  EXPECT_EQ(ask(0x1B, "05"), "1C: 00");

  upload("play005.lst");
  upload("play012.lst", "[x]");
  upload("play12.lst");  // no playlist
  EXPECT_EQ(ask(0xA7), "A7: 05 0C");
  EXPECT_EQ(ask(0x1B, "05"), "1C: 01");
  EXPECT_EQ(ask(0x2D), "2E: 01 00 05 " + words("play005.lst"));
  EXPECT_EQ(ask(0x3A), "3B: 05 " + words("[all]"));

  EXPECT_EQ(ask(0xAE, "05"), "AE: 01");
  EXPECT_EQ(ask(0xAE, "05"), "AE: 00");
  EXPECT_EQ(ask(0x2D), "2E: 02 00 00");
  EXPECT_EQ(ask(0xA7), "A7: 0C");
}

TEST_F(PlaylistsTest, AreFoundByTheLowByteOfTheirNumber) {
  upload("play044.lst");
  upload("play300.lst");  // 300 is 44 in a byte
  EXPECT_EQ(ask(0xA7), "A7: 2C 2C");
  EXPECT_EQ(ask(0x1B, "2C"), "1C: 01");
  EXPECT_EQ(mAnswer.asked, "playlist 300");  // just sent
  mSession = {};
  EXPECT_EQ(ask(0x1B, "2C"), "1C: 01");
  EXPECT_EQ(mAnswer.asked, "playlist 44");
  EXPECT_EQ(ask(0xAE, "2C"), "AE: 01");
  EXPECT_EQ(ask(0x1B, "2C"), "1C: 01");
  EXPECT_EQ(mAnswer.asked, "playlist 300");
}

// A host sends a playlist as one chunk and then waits, however long the chunk is.
TEST_F(PlaylistsTest, AreWholeWithTheirFirstChunk) {
  name("play001.lst");
  EXPECT_EQ(chunk(1, kFull), "14: 01 00 01 | F9: 01");
  EXPECT_EQ(content("play001.lst").size(), kFull);
  EXPECT_EQ(chunk(2, kFull), "14: 02 00 00");
}

}  // namespace
}  // namespace tovi::sim
