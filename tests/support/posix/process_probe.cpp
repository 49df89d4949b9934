// SPDX-License-Identifier: MIT
#include "tests/support/process_probe.h"

#include <filesystem>
#include <iterator>

namespace tovi::test {
namespace {

std::size_t entriesOf(const char* folder) {
  const std::filesystem::directory_iterator entries(folder);
  return static_cast<std::size_t>(std::distance(begin(entries), end(entries)));
}

}  // namespace

std::size_t openDescriptors() { return entriesOf("/proc/self/fd"); }
std::size_t threads() { return entriesOf("/proc/self/task"); }

}  // namespace tovi::test
