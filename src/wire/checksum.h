// SPDX-License-Identifier: MIT
// The checksum of frames.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tovi::wire {

inline constexpr std::uint16_t kChecksumStart = 0xFFFF;

// The controllers' own table differs from the polynomial's in one entry, and frames only verify
// with theirs.
inline constexpr std::size_t kAlteredIndex = 0x89;
inline constexpr std::uint16_t kAlteredEntry = 0x019C;
inline constexpr std::uint16_t kPolynomialEntry = 0x19C9;

// What pubCalcCRC gives, of bytes inside the library.
std::uint16_t checksum(std::string_view bytes);

// The same one byte after another, going on from the checksum of what stands before them.
std::uint16_t checksumByBytes(std::string_view bytes, std::uint16_t before = kChecksumStart);

}  // namespace tovi::wire
