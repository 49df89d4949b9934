// SPDX-License-Identifier: MIT
// The progress of a file transfer on a terminal.
#pragma once

#include <chrono>
#include <cstdio>
#include <string>

namespace tovi::cli {

// " 45% [=========>            ]  1.2 MB/s  0:05 left"
std::string progressText(long long sent, long long total, double seconds);

// Draws on one line of a terminal, which it leaves when it is destroyed.
class ProgressBar {
 public:
  // Null draws nothing.
  explicit ProgressBar(std::FILE* terminal) : mTerminal(terminal) {}
  ~ProgressBar();
  ProgressBar(const ProgressBar&) = delete;
  ProgressBar& operator=(const ProgressBar&) = delete;

  void show(long long sent, long long total);

 private:
  using Clock = std::chrono::steady_clock;

  std::FILE* mTerminal;
  Clock::time_point mBegin = Clock::now();
  Clock::time_point mDrawn = {};
  bool mStarted = false;
};

}  // namespace tovi::cli
