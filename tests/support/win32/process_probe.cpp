// SPDX-License-Identifier: MIT
#include "tests/support/process_probe.h"

#include <windows.h>

namespace tovi::test {

std::size_t openDescriptors() {
  DWORD count = 0;
  ::GetProcessHandleCount(::GetCurrentProcess(), &count);
  return count;
}

}  // namespace tovi::test
