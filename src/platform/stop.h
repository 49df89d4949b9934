// SPDX-License-Identifier: MIT
// How another thread ends a wait.
#pragma once

#include <atomic>

namespace tovi::platform {

// Set by another thread when what is waited for is not wanted any more; null when nobody does that.
using Stop = const std::atomic<bool>*;

inline bool isStopped(Stop stop) {
  return stop != nullptr && stop->load(std::memory_order_relaxed);
}

// A wait looks that often whether it is stopped: no descriptor has to be kept for it, and to people
// it is at once.
inline constexpr int kStopLookMs = 50;

}  // namespace tovi::platform
