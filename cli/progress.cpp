// SPDX-License-Identifier: MIT
#include "cli/progress.h"

#include <algorithm>
#include <cmath>

namespace tovi::cli {
namespace {

constexpr std::size_t kBarWidth = 30;
constexpr std::chrono::milliseconds kBetweenDrawings{100};

std::string barText(double share) {
  const auto filled = static_cast<std::size_t>(share * static_cast<double>(kBarWidth));
  std::string bar(filled, '=');
  if (filled < kBarWidth) bar += '>';
  bar.resize(kBarWidth, ' ');
  return bar;
}

std::string rateText(double bytesPerSecond) {
  const char* unit = bytesPerSecond < 1e6 ? "kB/s" : "MB/s";
  char text[40];
  std::snprintf(text, sizeof text, "%.1f %s", bytesPerSecond / (bytesPerSecond < 1e6 ? 1e3 : 1e6),
                unit);
  return text;
}

std::string remainingText(double seconds) {
  constexpr double kMost = 99 * 3600;
  if (seconds > kMost) return "--:--";
  const int whole = static_cast<int>(std::lround(seconds));
  char text[40];
  if (whole < 3600) {
    std::snprintf(text, sizeof text, "%d:%02d", whole / 60, whole % 60);
  } else {
    std::snprintf(text, sizeof text, "%d:%02d:%02d", whole / 3600, whole / 60 % 60, whole % 60);
  }
  return text;
}

}  // namespace

std::string progressText(long long sent, long long total, double seconds) {
  const double share =
      total > 0 ? std::min(1.0, static_cast<double>(sent) / static_cast<double>(total)) : 1.0;
  const double rate = seconds > 0 ? static_cast<double>(sent) / seconds : 0;
  const double left = static_cast<double>(std::max(total - sent, 0LL));
  char percent[8];
  std::snprintf(percent, sizeof percent, "%3d%%", static_cast<int>(share * 100));
  std::string text = std::string(percent) + " [" + barText(share) + "]  " + rateText(rate) + "  ";
  if (left == 0) return text + "0:00 left";
  return text + (rate > 0 ? remainingText(left / rate) : "--:--") + " left";
}

ProgressBar::~ProgressBar() {
  if (mStarted) std::fputs("\n", mTerminal);
}

void ProgressBar::show(long long sent, long long total) {
  const Clock::time_point now = Clock::now();
  if (mTerminal == nullptr || (mStarted && sent < total && now - mDrawn < kBetweenDrawings)) return;
  constexpr int kWidth = 70;  // covers what an earlier, longer text has left
  const std::string text =
      progressText(sent, total, std::chrono::duration<double>(now - mBegin).count());
  std::fprintf(mTerminal, "\r%-*s", kWidth, text.c_str());
  std::fflush(mTerminal);
  mStarted = true;
  mDrawn = now;
}

}  // namespace tovi::cli
