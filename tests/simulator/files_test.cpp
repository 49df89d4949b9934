// SPDX-License-Identifier: MIT
// Files, and playlists among them, with what the screen tells of the one that plays.
#include "tests/simulator/uploads.h"

namespace tovi::sim {
namespace {

constexpr std::size_t kFullCiphered = 65517;

using FilesTest = Uploads;

TEST_F(FilesTest, AChunkThatIsNotFullEndsTheFile) {
  EXPECT_EQ(name("full"), "12: 01");
  EXPECT_EQ(chunk(1, kFull, 'a'), "14: 01 00 01");
  EXPECT_EQ(chunk(2, kFull, 'b'), "14: 02 00 01");
  EXPECT_EQ(chunk(3, 0), "14: 03 00 01 | F9: 01");
  EXPECT_EQ(content("full"), std::string(kFull, 'a') + std::string(kFull, 'b'));

  EXPECT_EQ(name("empty"), "12: 01");
  EXPECT_EQ(chunk(1, 0), "14: 01 00 01 | F9: 01");
  EXPECT_EQ(content("empty"), "");

  mController.change([](State& state) { state.security.key = {Cipher::Des, "12345678"}; });
  EXPECT_EQ(name("ciphered"), "12: 01");
  EXPECT_EQ(chunk(1, kFullCiphered), "14: 01 00 01");
  EXPECT_EQ(chunk(2, kFullCiphered - 1), "14: 02 00 01 | F9: 01");
}

TEST_F(FilesTest, ASecondEndIsAcknowledgedAndConfirmedAgain) {
  name("a");
  chunk(1, kFull);
  EXPECT_EQ(chunk(2, 0), "14: 02 00 01 | F9: 01");
  EXPECT_EQ(chunk(3, 0), "14: 03 00 01 | F9: 01");
  EXPECT_EQ(chunk(4, 1), "14: 04 00 00");  // but nothing is added
  EXPECT_EQ(content("a").size(), kFull);
}

TEST_F(FilesTest, ChunksAreTakenInOrderAlone) {
  EXPECT_EQ(chunk(1, 1), "14: 01 00 00");  // of no file
  name("a");
  EXPECT_EQ(chunk(0, 1), "14: 00 00 00");
  EXPECT_EQ(chunk(2, 1), "14: 02 00 00");
  EXPECT_EQ(chunk(1, kFull), "14: 01 00 01");
  EXPECT_EQ(chunk(1, kFull), "14: 01 00 00");
  EXPECT_EQ(mAnswer.asked, "chunk 1, 65535 bytes, expected is chunk 2");
  EXPECT_EQ(ask(0x13, "02"), "14: 02 00 00");
  EXPECT_EQ(chunk(0x0102, 1), "14: 02 01 00");
  mSession.upload->next = 0xFFFF;  // after 4 GB
  EXPECT_EQ(chunk(0xFFFF, kFull), "14: FF FF 01");
  EXPECT_EQ(chunk(0, 1), "14: 00 00 01 | F9: 01");
  EXPECT_EQ(content("a").size(), 2 * kFull + 1);
}

TEST_F(FilesTest, NamesArePlainFileNames) {
  const std::string longest(255, 'n');
  for (const std::string& good : {std::string("限速.mp4"), longest, std::string("a..b c.txt")}) {
    EXPECT_EQ(name(good), "12: 01") << good;
  }
  for (const std::string& bad :
       {std::string(), std::string("."), std::string(".."), std::string("../a"), std::string("a/b"),
        std::string("a\\b"), std::string("c:a"), std::string("a\0b", 3), std::string("a\nb"),
        std::string("\xC3\xFB"), longest + "n"}) {
    EXPECT_EQ(name(bad), "12: 00") << bad;
    EXPECT_EQ(chunk(1, 1), "14: 01 00 00") << bad;
  }
  EXPECT_EQ(ask(0x11, "FF FE 61"), "12: 00");
  EXPECT_EQ(ask(0x11, "FF"), "12: 00");
}

TEST_F(FilesTest, WhatIsNotFinishedIsDiscarded) {
  name("a");
  chunk(1, kFull);
  EXPECT_EQ(mController.files().used(), kFull);
  name("b");
  EXPECT_EQ(mController.files().used(), 0U);
  chunk(1, kFull);
  mSession = {};  // the connection ends
  EXPECT_EQ(mController.files().used(), 0U);
  name("c");
  ask(0x13, "01 00 61");
  EXPECT_EQ(hex(mController.refuseFile(mSession).replies.at(0).payload), "00");
  EXPECT_EQ(mController.files().used(), 0U);
  EXPECT_TRUE(mController.files().names().empty());
  EXPECT_EQ(chunk(2, 0), "14: 02 00 01 | F9: 00");  // refused once more
}

TEST_F(FilesTest, ThatDoNotFitAreRefused) {
  name("a");
  for (std::uint16_t i = 1; i <= 4; ++i) chunk(i, kFull);
  EXPECT_EQ(chunk(5, kFull), "14: 05 00 00");
  EXPECT_EQ(mController.files().used(), 0U);
  EXPECT_EQ(chunk(5, 0), "14: 05 00 00");  // it is lost
  name("b");
  EXPECT_EQ(chunk(1, 1000), "14: 01 00 01 | F9: 01");
  EXPECT_EQ(ask(0x47), "48: 24 01 00 00 23 01 00 00");
}

TEST_F(FilesTest, AreToldApartByListsAndCleanUp) {
  upload("b \"1\".mp4");
  upload("a.png");
  upload("play005.lst");
  const std::string media = words(R"(["a.png","b \"1\".mp4"])");
  EXPECT_EQ(ask(0xB0), "B0: 01 " + media + " 00");
  EXPECT_EQ(ask(0xB9, "01"), "B9: 01 " + media + " 00");
  EXPECT_EQ(ask(0xB9, "02"), "B9: 01 " + words(R"(["play005.lst"])") + " 00");
  EXPECT_EQ(ask(0xB9, "00"), "B9: 01 " + words(R"(["a.png","b \"1\".mp4","play005.lst"])") + " 00");
  EXPECT_EQ(ask(0xB9, "03"), "B9: 00");

  EXPECT_EQ(ask(0x7C, "04"), "7D: 00");
  ask(0x88, "01 03 61");
  EXPECT_EQ(ask(0x7C, "03"), "7D: 01");  // updates
  EXPECT_EQ(ask(0x88, "00 03"), "89: 00");
  EXPECT_EQ(ask(0x7C, "01"), "7D: 01");
  EXPECT_EQ(ask(0xB0), "B0: 01 " + words("[]") + " 00");
  EXPECT_EQ(ask(0xA7), "A7: 05");
  EXPECT_EQ(ask(0x7C, "00"), "7D: 01");
  EXPECT_EQ(ask(0xA7), "A7:");
}

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
