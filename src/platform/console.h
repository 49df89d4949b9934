// SPDX-License-Identifier: MIT
// The words and the standard streams of a command-line program.
#pragma once

#include <cstdio>
#include <string>
#include <vector>

namespace tovi::platform {

// The words of the command line as UTF-8, the program's name first.
std::vector<std::string> commandLineWords(int count, const char* const* words);

// Lets a terminal show UTF-8 until the process ends.
void showUtf8();

// Hands over the real standard output and points the process's own at nothing, so that lines which
// the library prints there stay out of a program's results. Null when that is impossible. Call
// once; the stream stays open until the process ends.
std::FILE* takeStandardOutput();

// Whether a person is likely to read the stream.
bool isTerminal(std::FILE* stream);

}  // namespace tovi::platform
