// SPDX-License-Identifier: MIT
#include "tools/interrupt.h"

#include <atomic>
#include <csignal>

namespace {

constexpr int kSignals[] = {SIGINT, SIGTERM};

static_assert(std::atomic<bool>::is_always_lock_free, "a signal handler may not wait for a lock");
std::atomic<bool> gInterrupted{false};

// Whichever comes next ends the program, even when its output is stuck.
extern "C" void noteInterrupt(int) {
  gInterrupted = true;
  for (const int signal : kSignals) std::signal(signal, SIG_DFL);
}

}  // namespace

namespace tovi::tools {

void stopOnInterrupt() {
  if (gInterrupted) return;
  for (const int signal : kSignals) std::signal(signal, noteInterrupt);
}

bool interrupted() { return gInterrupted; }

}  // namespace tovi::tools
