// SPDX-License-Identifier: MIT
// Texts of strangers on their way to a terminal.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tovi::tools {

// A byte as two digits: "0A".
std::string hexDigits(std::uint8_t byte);

enum class Breaks { Shown, Kept };

// Safe to print: UTF-8 stays, control characters and other bytes become \xNN, so that nothing moves
// the cursor, names the window or types for the user. Line ends and tabs may be kept.
std::string printable(std::string_view text, Breaks breaks = Breaks::Shown);

}  // namespace tovi::tools
