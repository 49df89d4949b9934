#include "cli/interrupt.h"

#include <atomic>
#include <csignal>

namespace {

static_assert(std::atomic<bool>::is_always_lock_free, "a signal handler may not wait for a lock");
std::atomic<bool> gInterrupted{false};

extern "C" void noteInterrupt(int signal) {
  gInterrupted = true;
  std::signal(signal, SIG_DFL);
}

}  // namespace

namespace tovi::cli {

void stopOnInterrupt() {
  if (!gInterrupted) std::signal(SIGINT, noteInterrupt);
}

bool interrupted() { return gInterrupted; }

}  // namespace tovi::cli
