// SPDX-License-Identifier: MIT
#include "tests/support/fake_platform_test.h"
#include "tests/support/hex.h"
#include "tests/support/process_probe.h"
#include "tests/support/wire.h"
#include "tests/transfer/temporary_folder.h"

#include <tovisdk/tovisdk.h>

namespace {

using tovi::test::fakePlatform;
using tovi::test::FakePlatformTest;
using tovi::test::frame;
using tovi::test::hex;
using tovi::test::openDescriptors;
using tovi::test::TemporaryFolder;
using tovi::test::toHex;

constexpr char kNoPicture[] = "AA FF FF 81 00 00 CC 83 4A";

std::string fullPiece() {
  return hex("AA FF FF 81 00 00") + std::string(65535, 'x') + hex("CC 57 AE");
}

class Screenshot : public FakePlatformTest {
 protected:
  Screenshot() { mFolder.file("what was there before", "screen"); }

  int take() {
    const std::size_t descriptors = openDescriptors();
    mTraffic.setDesKey("no key");  // which ends otherwise
    const int result = mTraffic.getDeviceScreenshot(mFolder.path("screen"));
    EXPECT_EQ(openDescriptors(), descriptors);
    EXPECT_EQ(fake().closed, fake().opened);
    mPicture = mFolder.content("screen");
    return result;
  }

  TemporaryFolder mFolder;
  std::string mPicture;
  ToviTraffic mTraffic{"127.0.0.1", 5005};
};

TEST_F(Screenshot, StandsInTheFileAsItCame) {
  fake().arrive(hex("AA FF FF 81 00 00") + std::string(97, 'x') +
                hex("EE 0A EE 0C EE 0E CC C5 5E"));
  EXPECT_EQ(take(), 1);
  EXPECT_EQ(mPicture, std::string(97, 'x') + "\xAA\xCC\xEE");
  EXPECT_EQ(mTraffic.lastOutcome(), ToviOutcome::Done);
  EXPECT_EQ(toHex(fake().sent.at(0)), "AA FF FF 80 FF FF CC 0B 6F");
  EXPECT_EQ(fake().receiveSizes, std::vector<std::size_t>{65535});
  EXPECT_TRUE(fake().logged("info getDeviceScreenshot start"));
}

TEST_F(Screenshot, EndsWithThePieceThatIsNotFull) {
  const std::string almostFull =
      hex("AA FF FF 81 00 00") + std::string(65534, 'x') + hex("CC 78 F6");
  struct {
    std::vector<std::string> pieces;
    std::string picture;
  } const cases[] = {
      {{hex(kNoPicture)}, ""},
      {{hex("AA FF FF 81 CC B1 0C")}, ""},  // not even room for a picture
      {{hex("AA FF FF 81 00 CC 64 CB")}, ""},
      {{almostFull}, std::string(65534, 'x')},
      {{fullPiece(), hex(kNoPicture)}, std::string(65535, 'x')},
      {{fullPiece(), fullPiece(), hex("AA FF FF 81 00 00 79 CC 6F FE")},
       std::string(131070, 'x') + "y"},
  };
  for (const auto& c : cases) {
    for (const std::string& piece : c.pieces) fake().arrive(piece);
    EXPECT_EQ(take(), 1);
    EXPECT_TRUE(mPicture == c.picture) << c.picture.size();
    EXPECT_TRUE(fake().incoming.empty()) << c.picture.size();
  }
}

TEST_F(Screenshot, CutShortIsNoSuccess) {
  fake().arrive(fullPiece());
  EXPECT_EQ(take(), -11);
  EXPECT_EQ(mTraffic.lastOutcome(), ToviOutcome::NoReply);
  EXPECT_TRUE(fake().logged("error ToviTraffic::getDeviceScreenshot piece 2 did not come"));
  EXPECT_EQ(mPicture, std::string(65535, 'x'));

  fake().sendFails = true;
  EXPECT_EQ(take(), -11);
  EXPECT_EQ(mTraffic.lastOutcome(), ToviOutcome::SendFailed);
  EXPECT_EQ(mPicture, "");
}

TEST_F(Screenshot, ThatNeverEndsIsGivenUp) {
#ifdef TOVI_SANITIZED
  GTEST_SKIP() << "a quarter of a gigabyte takes minutes under a sanitizer";
#endif
  // Whenever a piece is awaited, one arrives.
  struct {
    const std::string piece = fullPiece();
    int count = 0;
  } sender;
  tovi_set_log_callback(
      [](void* user, int, const char* record) {
        if (std::string_view(record) != "ToviTraffic::recv start") return;
        fakePlatform().arrive(static_cast<decltype(&sender)>(user)->piece);
        ++static_cast<decltype(&sender)>(user)->count;
      },
      &sender);
  const std::string sink = std::filesystem::exists("/dev/null") ? "/dev/null" : "NUL";
  EXPECT_EQ(mTraffic.getDeviceScreenshot(sink), -11);
  EXPECT_EQ(mTraffic.lastOutcome(), ToviOutcome::BadReply);
  EXPECT_EQ(sender.count, 4096);
  EXPECT_EQ(fake().closed, 1);
}

TEST_F(Screenshot, NeedsAFileBeforeAnythingElse) {
  struct {
    std::string path;
    ToviOutcome outcome;
  } const cases[] = {{"", ToviOutcome::RefusedArgument},
                     {mFolder.path(), ToviOutcome::LocalFile},
                     {mFolder.path("missing") + "/screen", ToviOutcome::LocalFile}};
  for (const auto& c : cases) {
    EXPECT_EQ(mTraffic.getDeviceScreenshot(c.path), -15) << c.path;
    EXPECT_EQ(mTraffic.lastOutcome(), c.outcome) << c.path;
  }
  EXPECT_EQ(fake().opened, 0);
  fake().connectFails = true;
  EXPECT_EQ(take(), -1);
  EXPECT_EQ(mTraffic.lastOutcome(), ToviOutcome::NoConnection);
  EXPECT_EQ(mPicture, "");
}

TEST_F(Screenshot, OnAFullDiskIsALocalFailure) {
  const std::string fullDisk = "/dev/full";
  if (!std::filesystem::exists(fullDisk)) GTEST_SKIP() << "no full disk to write to";
  fake().arrive(frame("81 00 00 70"));
  EXPECT_EQ(mTraffic.getDeviceScreenshot(fullDisk), -13);
  EXPECT_EQ(mTraffic.lastOutcome(), ToviOutcome::LocalFile);
  EXPECT_TRUE(fake().logged("error ToviTraffic::getDeviceScreenshot cannot write /dev/full"));
  EXPECT_EQ(fake().closed, 1);
}

}  // namespace
