// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

#include "simulator/bytes.h"
#include "tests/support/hex.h"

namespace tovi::sim {

// The bytes of a hexadecimal text, as in "AA FF 07".
inline Bytes literal(std::string_view text) { return bytesOf(test::hex(text)); }

}  // namespace tovi::sim
