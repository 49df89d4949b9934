// SPDX-License-Identifier: MIT
// What this process holds, as far as a difference of two readings tells.
#pragma once

#include <cstddef>

namespace tovi::test {

std::size_t openDescriptors();  // on Windows: handles

}  // namespace tovi::test
