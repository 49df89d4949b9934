// SPDX-License-Identifier: MIT
// Turning words that a person typed into values.
#pragma once

#include <optional>
#include <stdexcept>
#include <string>

namespace tovi::cli {

// Says what is wrong with a word, for a person.
struct Unusable : std::runtime_error {
  using std::runtime_error::runtime_error;
};

std::string quoted(const std::string& text);

// A decimal number without sign, of which every character counts. Throws Unusable.
int numberWithin(const std::string& word, int least, int most);

// A path as the library takes it, which is in the local code page. Throws Unusable when that lacks
// a character.
std::string localPath(const std::string& path);

// The whole file, or standard input for "-"; nothing when it cannot be read.
std::optional<std::string> readText(const std::string& path);

}  // namespace tovi::cli
