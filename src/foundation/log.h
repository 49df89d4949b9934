// SPDX-License-Identifier: MIT
// Records of the library itself. The public functions of <tovisdk/log.h> stand on the same writer;
// these spare the library the copy of each format and let the compiler check the arguments.
#pragma once

#include <cstdarg>
#include <string_view>

namespace tovi::log {

// Each level's number is its limit: a record is written while the threshold is at most that.
enum class Level { Info = 0, Debug = 1, Warning = 2, Error = 3 };

[[gnu::format(printf, 1, 2)]] void info(const char* format, ...);
[[gnu::format(printf, 1, 2)]] void warning(const char* format, ...);
[[gnu::format(printf, 1, 2)]] void error(const char* format, ...);

void write(Level level, const char* format, std::va_list arguments);

// A key's text as records may show it: itself, or asterisks once the host asked for that.
const char* shownKey(const char* key);

// A line of at most 63 characters on standard output, unless the host wants none there. Hosts read
// these lines.
void print(std::string_view line);

}  // namespace tovi::log
