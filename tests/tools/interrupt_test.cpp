// SPDX-License-Identifier: MIT
#include "tools/interrupt.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>

namespace tovi::tools {
namespace {

// In a process of its own, which says how far it came; one that survives both signals fails.
void interruptTwice(int first, int second) {
  stopOnInterrupt();
  if (interrupted()) std::_Exit(0);
  std::raise(first);
  if (!interrupted()) std::_Exit(0);
  std::fputs("noted", stderr);
  stopOnInterrupt();  // as the next of many controllers would
  std::raise(second);
}

TEST(InterruptDeathTest, IsNotedOnceWhicheverItIs) {
  for (const int first : {SIGINT, SIGTERM}) {
    for (const int second : {SIGINT, SIGTERM}) {
      EXPECT_DEATH(interruptTwice(first, second), "noted") << first << " " << second;
    }
  }
}

}  // namespace
}  // namespace tovi::tools
