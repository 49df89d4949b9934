// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <tovisdk/log.h>

#include "tests/support/fake_platform.h"

namespace tovi::test {

// Each test begins on a fresh platform whose clock shows a second of its own.
class FakePlatformTest : public testing::Test {
 protected:
  FakePlatformTest() {
    static std::time_t second = 1000;
    fake() = FakePlatform{};
    fake().now = ++second;
    fake().localTime.tm_year = 124;
    fake().localTime.tm_mday = 5;
    fake().folders.insert("/host/bin/log/");
    tovi_set_log_level(0);
    tovi_set_log_folder(nullptr);
    tovi_set_log_redaction(false);
    tovi_set_log_limit(0);
    tovi_set_log_callback(nullptr, nullptr);
    tovi_set_console(1);
  }

  static FakePlatform& fake() { return fakePlatform(); }
};

}  // namespace tovi::test
