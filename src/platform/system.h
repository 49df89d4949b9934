// SPDX-License-Identifier: MIT
// Time, pauses and the running program.
#pragma once

#include <ctime>
#include <string>

namespace tovi::platform {

// Suspends the calling thread for at least that long, interrupted or not.
void pauseFor(int milliseconds);

// Seconds since 1970-01-01 00:00 UTC.
std::time_t now();

// The local calendar time, without shared state.
std::tm localTime(std::time_t time);

// The folder of the running executable with its closing separator; empty when unknown.
std::string executableFolder();

}  // namespace tovi::platform
