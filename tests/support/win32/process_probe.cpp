// SPDX-License-Identifier: MIT
#include "tests/support/process_probe.h"

#include <windows.h>

#include <tlhelp32.h>  // wants the former

namespace tovi::test {

std::size_t openDescriptors() {
  DWORD count = 0;
  ::GetProcessHandleCount(::GetCurrentProcess(), &count);
  return count;
}

std::size_t threads() {
  const HANDLE snapshot = ::CreateToolhelp32Snapshot(TH32CS_SNAPTHREAD, 0);
  std::size_t count = 0;
  THREADENTRY32 entry{};
  entry.dwSize = sizeof entry;
  for (BOOL more = ::Thread32First(snapshot, &entry); more;
       more = ::Thread32Next(snapshot, &entry)) {
    if (entry.th32OwnerProcessID == ::GetCurrentProcessId()) ++count;
  }
  ::CloseHandle(snapshot);
  return count;
}

}  // namespace tovi::test
