// SPDX-License-Identifier: MIT
// Results on their way to a stream.
#pragma once

#include <cstdio>
#include <string>

namespace tovi::cli {

// A line of results: on a terminal what is safe to print of it, elsewhere as it is.
void printLine(std::FILE* results, const std::string& text);

}  // namespace tovi::cli
