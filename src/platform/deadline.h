// SPDX-License-Identifier: MIT
// The end of a bounded wait, told in the milliseconds that a poll call takes.
#pragma once

#include <chrono>
#include <optional>

#include "platform/stop.h"

namespace tovi::platform {

class Deadline {
 public:
  static Deadline after(int milliseconds) {
    return Deadline(Clock::now() + std::chrono::milliseconds(milliseconds));
  }
  static Deadline never() { return Deadline(std::nullopt); }

  // The rule of every socket time-out: 0 or less waits without limit.
  static Deadline ofTimeout(int milliseconds) {
    return milliseconds > 0 ? after(milliseconds) : never();
  }

  // -1 without limit, 0 once passed. Rounded up, so that the last part of a millisecond is waited
  // for and not spun through.
  int remainingMs() const {
    if (!end_) return -1;
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(*end_ - Clock::now()).count();
    return left > 0 ? static_cast<int>(left) : 0;
  }

  // The same for a wait that somebody may stop: no longer than until the next look at that.
  int remainingMs(Stop stop) const {
    const int left = remainingMs();
    return stop != nullptr && (left < 0 || left > kStopLookMs) ? kStopLookMs : left;
  }

 private:
  using Clock = std::chrono::steady_clock;
  explicit Deadline(std::optional<Clock::time_point> end) : end_(end) {}

  std::optional<Clock::time_point> end_;
};

}  // namespace tovi::platform
