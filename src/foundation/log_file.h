// SPDX-License-Identifier: MIT
// Where records are written: the day's file.
#pragma once

#include <string>
#include <string_view>

namespace tovi::log {

// Appends a record, stamped with the local time, to the day's file; it is lost where that cannot be
// written. Throws nothing.
void writeToFile(const char* levelWord, std::string_view message);

// "YYYY-MM-DD hh:mm:ss"
std::string currentStamp();

}  // namespace tovi::log
