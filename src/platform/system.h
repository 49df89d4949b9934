// SPDX-License-Identifier: MIT
// Time, pauses and the running program.
#pragma once

#include <ctime>
#include <string>

#include "platform/stop.h"

namespace tovi::platform {

// Suspends the calling thread for at least that long, interrupted or not, unless it is stopped.
void pauseFor(int milliseconds, Stop stop = nullptr);

// Milliseconds of a clock that nobody sets; more than 0.
long long steadyMs();

// Seconds since 1970-01-01 00:00 UTC.
std::time_t now();

// The local calendar time, without shared state.
std::tm localTime(std::time_t time);

// The folder of the running executable with its closing separator; empty when unknown.
std::string executableFolder();

}  // namespace tovi::platform
