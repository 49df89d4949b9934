// SPDX-License-Identifier: MIT
// What the tests on the real platform want for as long as they run.
#include <gtest/gtest.h>
#include <tovisdk/log.h>

#include "platform/sockets.h"

namespace {

class Environment : public testing::Environment {
 public:
  void SetUp() override {
    // Tests exchange by the thousand; their records would only fill the disk.
    tovi_set_log_level(4);
    // As a host does that has sockets of its own: where the library's clean-up is the last, the
    // system closes them.
    ASSERT_EQ(tovi::platform::startUpSockets(), tovi::platform::StartUp::Ready);
  }
  void TearDown() override { tovi::platform::cleanUpSockets(); }
};

const testing::Environment* const kEnvironment = testing::AddGlobalTestEnvironment(new Environment);

}  // namespace
