// SPDX-License-Identifier: MIT
#include "platform/system.h"

#include <windows.h>

#include <chrono>

#include "platform/deadline.h"
#include "platform/win32/wide.h"

namespace tovi::platform {

void pauseFor(int milliseconds, Stop stop) {
  // Sleep may return up to one clock tick early.
  const Deadline deadline = Deadline::after(milliseconds);
  for (int left = 0; !isStopped(stop) && (left = deadline.remainingMs(stop)) > 0;) {
    ::Sleep(static_cast<DWORD>(left));
  }
}

long long steadyMs() {
  using namespace std::chrono;
  return 1 + duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

std::time_t now() { return std::time(nullptr); }

std::tm localTime(std::time_t time) {
  std::tm result{};
  return ::localtime_s(&result, &time) == 0 ? result : std::tm{};
}

std::string executableFolder() {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD size = static_cast<DWORD>(path.size());
    const DWORD length = ::GetModuleFileNameW(nullptr, path.data(), size);
    if (length == 0) return {};
    if (length < size) {
      path.resize(length);
      break;
    }
    path.resize(path.size() * 2);  // it was cut off
  }
  // In UTF-16, because a separator's byte may be half a character in some code pages.
  return fromWide(::GetACP(), path.substr(0, path.rfind(L'\\') + 1)).value_or("");
}

}  // namespace tovi::platform
