// SPDX-License-Identifier: MIT
// Ownership of what methods return by pointer.
#include <gtest/gtest.h>

#include <cstring>
#include <type_traits>

#include <tovisdk/tovisdk.h>

#include "tests/support/heap_probe.h"

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
  const long blocks = tovi::test::heapBlocksOfThisThread();
  expectReleased(new BackUpsInfo{1, std::string(100, 't')});
  expectReleased(new BrightnessItem);
  expectReleased(new TimeZoneParam);
  expectReleased(new DeviceNTPParam);
  DeviceType* status = new DeviceType;
  EXPECT_EQ(status->getDate(), nullptr);
  EXPECT_FALSE(status->isBoxDoorOpen() || status->isScreenPowerOpen() || status->isScreenOpen() ||
               status->getTemperature() || status->isInputSourceInside() ||
               status->getEnvironmentBrightness() || status->getBrightnessType() ||
               status->getScreenBrightness());
  status->setDate(new std::tm{});
  expectReleased(status);
  expectReleased(new DeviceNowPlayItem(true, 1, newText("text")));
  expectReleased(new DeviceNowPlayItem(true, 1, nullptr));
  expectReleased(new DeviceNowPlayList(1, newText("text")));
  expectReleased(new std::list<DevicePowerByTimeParam>(3));
  expectReleased(new std::list<PlayByTimeParam>(3));
  expectReleased(new std::list<BrightnessByTimeParam>(3));
  EXPECT_EQ(tovi::test::heapBlocksOfThisThread(), blocks);
}

// A list would copy them without a word, and two would release the same memory.
template <class T>
void expectOnlyAssigned() {
  EXPECT_FALSE(std::is_copy_constructible_v<T>);
  EXPECT_TRUE(std::is_copy_assignable_v<T>);
}

TEST(Records, ThatOwnMemoryAreAssignedAndShareIt) {
  expectOnlyAssigned<DeviceType>();
  expectOnlyAssigned<SocketResult>();
  expectOnlyAssigned<DeviceNowPlayItem>();
  expectOnlyAssigned<DeviceNowPlayList>();
  EXPECT_FALSE(std::is_copy_constructible_v<ToviTraffic>);
  EXPECT_FALSE(std::is_copy_constructible_v<ProtocalParser>);

  DeviceNowPlayItem item(true, 1, newText("text"));
  DeviceNowPlayItem* copy = new DeviceNowPlayItem(false, 2, nullptr);
  *copy = item;
  EXPECT_EQ(copy->getContent(), item.getContent());
  EXPECT_EQ(copy->getPlayId(), 1);
  ::operator delete(copy);  // without its destructor: one of the two may be destroyed
}

}  // namespace
