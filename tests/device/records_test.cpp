// SPDX-License-Identifier: MIT
// Ownership of what methods return by pointer.
#include <gtest/gtest.h>

#include <cstring>
#include <type_traits>

#include <tovisdk/tovisdk.h>

#include "tests/support/fake_platform_test.h"
#include "tests/support/test_access.h"
#include "tests/support/wire.h"

namespace {

char* newText(const char* text) { return std::strcpy(new char[std::strlen(text) + 1], text); }

template <class T>
void expectReleased(T* object) {
  deleteObj(&object);
  EXPECT_EQ(object, nullptr);
  deleteObj(&object);
  deleteObj(static_cast<T**>(nullptr));
}

TEST(Records, AreReleasedOnceAndNullSafely) {
  expectReleased(new BackUpsInfo);
  expectReleased(new BrightnessItem);
  expectReleased(new TimeZoneParam);
  expectReleased(new DeviceNTPParam);
  DeviceType* status = new DeviceType;
  status->setDate(new std::tm{});
  expectReleased(status);
  expectReleased(new DeviceNowPlayItem(true, 1, newText("text")));
  expectReleased(new DeviceNowPlayItem(true, 1, nullptr));
  expectReleased(new DeviceNowPlayList(1, newText("text")));
  expectReleased(new std::list<DevicePowerByTimeParam>(3));
  expectReleased(new std::list<PlayByTimeParam>(3));
  expectReleased(new std::list<BrightnessByTimeParam>(3));
}

// A list would copy them without a word, and two would release the same array.
TEST(Records, AreNotCopiedIntoOthers) {
  EXPECT_FALSE(std::is_copy_constructible_v<DeviceType>);
  EXPECT_FALSE(std::is_copy_constructible_v<SocketResult>);
  EXPECT_FALSE(std::is_copy_constructible_v<DeviceNowPlayItem>);
  EXPECT_FALSE(std::is_copy_constructible_v<DeviceNowPlayList>);
  EXPECT_TRUE(std::is_copy_assignable_v<DeviceType>);
  EXPECT_TRUE(std::is_copy_assignable_v<SocketResult>);
}

TEST(Records, CopiesOfPlayingItemsShareTheirText) {
  DeviceNowPlayItem item(true, 1, newText("text"));
  DeviceNowPlayItem* copy = new DeviceNowPlayItem(false, 2, nullptr);
  *copy = item;
  EXPECT_EQ(copy->getContent(), item.getContent());
  EXPECT_EQ(copy->getPlayId(), 1);
  ::operator delete(copy);  // without its destructor: one of the two may be destroyed
}

class SecureMode : public tovi::test::FakePlatformTest {};

TEST_F(SecureMode, AcceptanceMakesTheNextReplyChooseItsCipherAnew) {
  ToviTraffic traffic("127.0.0.1", 5005);
  fake().arrive(tovi::test::frame("71 01"));
  EXPECT_EQ(traffic.setDeviceSecretParam({"l", 0, true, "", ""}, false), 1);
  // The parser that read the answer was a plain one; the next is made for the key.
  traffic.setDesKey("12345678");
  fake().files.clear();
  fake().arrive(tovi::test::frame("08 DE EC BA 37 86 7B D1 42"));
  EXPECT_EQ(traffic.setBrightness(80), 1);
  EXPECT_TRUE(
      fake().logged("info ToviTraffic::recv create protocalParser des mode, des key = 12345678"));

  fake().arrive(tovi::test::frame("71 00"));
  EXPECT_EQ(traffic.setDeviceSecretParam({"l", 0, true, "", ""}, false), -12);
  fake().files.clear();
  fake().arrive(tovi::test::frame("08 DE EC BA 37 86 7B D1 42"));
  EXPECT_EQ(traffic.setBrightness(80), 1);
  EXPECT_FALSE(
      fake().logged("info ToviTraffic::recv create protocalParser des mode, des key = 12345678"));
}

}  // namespace
