// SPDX-License-Identifier: MIT
// Calendar times as people write them.
#pragma once

#include <ctime>
#include <optional>
#include <string>
#include <string_view>

namespace tovi::cli {

// From "2024-03-01T08:00:00", a time that exists; nothing from anything else. The result counts
// years from 1900 and months from 0, as a tm does.
std::optional<std::tm> parseTime(std::string_view text);

// The same text back. Fields that make no time are shown as they are.
std::string timeText(const std::tm& time);

// Milliseconds since 1970-01-01 00:00 UTC, and back as "2024-03-01T00:00:00Z". Parts of a second
// are dropped; a year that has not four digits is shown as milliseconds.
long long utcMilliseconds(const std::tm& time);
std::string utcText(long long milliseconds);

}  // namespace tovi::cli
