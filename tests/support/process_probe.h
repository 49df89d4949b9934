// What this process holds, where the system tells.
#pragma once

#include <cstddef>
#include <filesystem>
#include <iterator>

namespace tovi::test {

inline std::size_t entriesOf(const char* folder) {
  std::error_code error;
  const std::filesystem::directory_iterator entries(folder, error);
  return error ? 0 : static_cast<std::size_t>(std::distance(begin(entries), end(entries)));
}

// 0 where the system does not tell.
inline std::size_t openDescriptors() { return entriesOf("/proc/self/fd"); }
inline std::size_t threads() { return entriesOf("/proc/self/task"); }

}  // namespace tovi::test
