// SPDX-License-Identifier: MIT
#include "platform/names.h"

#include <gtest/gtest.h>

namespace tovi::platform {
namespace {

TEST(Names, AreLookedUp) {
  EXPECT_EQ(addressOfName("localhost"), "127.0.0.1");
  // No name server is asked for these.
  EXPECT_EQ(addressOfName("127.0.0.2"), "127.0.0.2");
  EXPECT_FALSE(addressOfName("::1"));
  EXPECT_FALSE(addressOfName(std::string(64, 'a')));
}

}  // namespace
}  // namespace tovi::platform
