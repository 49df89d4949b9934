// SPDX-License-Identifier: MIT
// How our programs end.
#pragma once

namespace tovi::tools {

inline constexpr int kDone = 0;
inline constexpr int kFailed = 1;
inline constexpr int kUsage = 2;

}  // namespace tovi::tools
