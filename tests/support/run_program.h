// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace tovi::test {

struct Streams {
  std::string in;  // paths; an empty one is nothing to read
  std::string out, err;
};

// Runs a program to its end without a shell. Words are UTF-8. Its exit status, or -1.
int runProgram(const std::string& program, const std::vector<std::string>& words,
               const Streams& streams);

}  // namespace tovi::test
