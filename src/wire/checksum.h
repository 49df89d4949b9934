// SPDX-License-Identifier: MIT
// The checksum of frames.
#pragma once

#include <cstdint>
#include <string_view>

namespace tovi::wire {

// What pubCalcCRC gives, of bytes inside the library.
std::uint16_t checksum(std::string_view bytes);

}  // namespace tovi::wire
