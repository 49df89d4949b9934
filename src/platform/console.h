// The standard streams of a command-line program.
#pragma once

#include <cstdio>

namespace tovi::platform {

// Hands over the real standard output and points the process's own at nothing, so that lines which
// the library prints there stay out of a program's results. Null when that is impossible. Call
// once; the stream stays open until the process ends.
std::FILE* takeStandardOutput();

// Whether a person is likely to read the stream.
bool isTerminal(std::FILE* stream);

}  // namespace tovi::platform
