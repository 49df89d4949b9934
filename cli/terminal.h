// Results on their way to a stream, and what a terminal must be kept from.
#pragma once

#include <cstdio>
#include <string>

namespace tovi::cli {

// Control characters but for line ends and tabs become "?": a text that a controller tells shall
// not move the cursor, name the window or type for the user.
std::string harmless(std::string text);

// A line of results: harmless on a terminal, as it is elsewhere.
void printLine(std::FILE* results, const std::string& text);

}  // namespace tovi::cli
