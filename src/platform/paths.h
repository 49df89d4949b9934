// SPDX-License-Identifier: MIT
// Between paths and UTF-8. The standard library takes a narrow text for UTF-8 on some systems only.
#pragma once

#include <filesystem>
#include <string>

namespace tovi::platform {

inline std::filesystem::path pathOf(const std::string& utf8) {
  return std::u8string(utf8.begin(), utf8.end());
}

inline std::string utf8Of(const std::filesystem::path& path) {
  const std::u8string utf8 = path.u8string();
  return {utf8.begin(), utf8.end()};
}

}  // namespace tovi::platform
