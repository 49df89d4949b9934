// SPDX-License-Identifier: MIT
#include "platform/system.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>

namespace tovi::platform {
namespace {

void pauseWhole(int milliseconds) {
  // An absolute end: relative pauses that signals keep interrupting would add up their roundings.
  timespec end{};
  ::clock_gettime(CLOCK_MONOTONIC, &end);
  end.tv_sec += milliseconds / 1000;
  end.tv_nsec += milliseconds % 1000 * 1'000'000L;
  if (end.tv_nsec >= 1'000'000'000L) {
    end.tv_sec += 1;
    end.tv_nsec -= 1'000'000'000L;
  }
  while (::clock_nanosleep(CLOCK_MONOTONIC, TIMER_ABSTIME, &end, nullptr) == EINTR) {
  }
}

}  // namespace

void pauseFor(int milliseconds, Stop stop) {
  for (int left = milliseconds; left > 0 && !isStopped(stop);) {
    const int part = stop != nullptr ? std::min(left, kStopLookMs) : left;
    pauseWhole(part);
    left -= part;
  }
}

long long steadyMs() {
  using namespace std::chrono;
  return 1 + duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

std::time_t now() { return std::time(nullptr); }

std::tm localTime(std::time_t time) {
  std::tm result{};
  return ::localtime_r(&time, &result) != nullptr ? result : std::tm{};
}

std::string executableFolder() {
  std::string path(256, '\0');
  for (;;) {
    const ssize_t length = ::readlink("/proc/self/exe", path.data(), path.size());
    if (length < 0) return {};
    // A path that fills the buffer may have been cut.
    if (static_cast<std::size_t>(length) < path.size()) {
      path.resize(static_cast<std::size_t>(length));
      break;
    }
    path.resize(path.size() * 2);
  }
  return path.substr(0, path.rfind('/') + 1);
}

}  // namespace tovi::platform
