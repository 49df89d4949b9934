// SPDX-License-Identifier: MIT
// Bytes of the wire and how they read on a terminal.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tovi::sim {

using Bytes = std::vector<std::uint8_t>;
using View = std::span<const std::uint8_t>;

Bytes bytesOf(std::string_view text);
std::string textOf(View bytes);

// "AA FF 07"; with a limit, the first bytes and how many there are in all.
std::string hex(View bytes, std::size_t limit = SIZE_MAX);

}  // namespace tovi::sim
