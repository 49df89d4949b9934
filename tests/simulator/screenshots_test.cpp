// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "tests/simulator/asked_controller.h"

namespace tovi::sim {
namespace {

class ScreenshotsTest : public testing::Test, protected AskedController {
 protected:
  // The payload sizes of the pieces; each begins with its number.
  std::vector<std::size_t> takeScreenshot() {
    mPicture.clear();
    ask(0x80, "FF FF");
    std::vector<std::size_t> sizes;
    for (const Message& piece : mAnswer.replies) {
      EXPECT_EQ(piece.code, 0x81);
      sizes.push_back(piece.payload.size());
      EXPECT_EQ(piece.payload.at(0) | piece.payload.at(1) << 8, static_cast<int>(sizes.size()));
      mPicture.insert(mPicture.end(), piece.payload.begin() + 2, piece.payload.end());
    }
    return sizes;
  }

  Bytes mPicture;
};

TEST_F(ScreenshotsTest, ShowTheDisplayInTheGreyOfItsBrightness) {
  mController.change([](State& state) {
    state.display.mode.width = 5;
    state.display.mode.height = 2;
  });
  EXPECT_EQ(takeScreenshot(), std::vector<std::size_t>{2 + 1094});
  const View picture = mPicture;
  EXPECT_EQ(hex(picture.first(58)),
            "42 4D 46 04 00 00 00 00 00 00 36 04 00 00 "
            "28 00 00 00 05 00 00 00 02 00 00 00 01 00 08 00 00 00 00 00 10 00 00 00 "
            "00 00 00 00 00 00 00 00 00 01 00 00 00 00 00 00 "
            "00 00 00 00");
  EXPECT_EQ(hex(picture.subspan(54 + 80 * 4, 4)), "50 50 50 00");
  // Two rows of five pixels, each filled up to eight.
  EXPECT_EQ(hex(picture.subspan(1078)), "50 50 50 50 50 50 50 50 50 50 50 50 50 50 50 50");
  ask(0x05, "02");
  takeScreenshot();
  EXPECT_EQ(mPicture.back(), 0);
}

TEST_F(ScreenshotsTest, ComeInPiecesTheLastOfWhichIsNotFull) {
  EXPECT_EQ(takeScreenshot().size(), 1U);  // 256 x 128
  const std::pair<std::size_t, std::vector<std::size_t>> kSizes[] = {
      {0, {2}},
      {100, {102}},
      {65534, {65536}},
      {65535, {65537, 2}},
      {65536, {65537, 3}},
      {131070, {65537, 65537, 2}},
  };
  for (const auto& [size, pieces] : kSizes) {
    mController.change([size = size](State& state) { state.display.screenshotSize = size; });
    EXPECT_EQ(takeScreenshot(), pieces) << size;
  }
  EXPECT_EQ(ask(0x80, "00 00"), "81: 00");
}

TEST_F(ScreenshotsTest, OfHugeDisplaysAreSmaller) {
  mController.change([](State& state) {
    state.display.mode.width = 16384;
    state.display.mode.height = 1000;
  });
  takeScreenshot();
  EXPECT_EQ(hex(View(mPicture).subspan(18, 8)), "00 10 00 00 FA 00 00 00");  // 4096 x 250
  EXPECT_EQ(mPicture.size(), 1078U + 4096 * 250);
}

}  // namespace
}  // namespace tovi::sim
