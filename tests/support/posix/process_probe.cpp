// SPDX-License-Identifier: MIT
#include "tests/support/process_probe.h"

#include <filesystem>
#include <iterator>

namespace tovi::test {

std::size_t openDescriptors() {
  const std::filesystem::directory_iterator all("/proc/self/fd");
  return static_cast<std::size_t>(std::distance(begin(all), end(all)));
}

}  // namespace tovi::test
