// SPDX-License-Identifier: MIT
// The text helpers as the library itself uses them: memory that is out is thrown, so that no half
// of a text passes for the whole.
#pragma once

#include <string>
#include <vector>

namespace tovi {

// As split.
std::vector<std::string> fieldsOf(const std::string& text, const std::string& separator);

// As toviStoll.
long long leadingNumber(const std::string& text);

}  // namespace tovi
