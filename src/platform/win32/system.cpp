#include "platform/system.h"

#include <windows.h>

#include "platform/deadline.h"

namespace tovi::platform {

void pauseFor(int milliseconds) {
  // Sleep may return up to one clock tick early.
  const Deadline deadline = Deadline::after(milliseconds);
  for (int left = deadline.remainingMs(); left > 0; left = deadline.remainingMs()) {
    ::Sleep(static_cast<DWORD>(left));
  }
}

std::time_t now() { return std::time(nullptr); }

std::tm localTime(std::time_t time) {
  std::tm result{};
  return ::localtime_s(&result, &time) == 0 ? result : std::tm{};
}

std::string executableFolder() {
  char path[MAX_PATH];
  const DWORD length = ::GetModuleFileNameA(nullptr, path, MAX_PATH);
  if (length == MAX_PATH) return {};  // cut off
  const std::string whole(path, length);
  return whole.substr(0, whole.rfind('\\') + 1);
}

}  // namespace tovi::platform
