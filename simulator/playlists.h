// SPDX-License-Identifier: MIT
// Playlists are files whose names hold their numbers.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "simulator/storage.h"

namespace tovi::sim {

// The number in "play005.lst"; nothing for any other name.
std::optional<int> playlistNumber(std::string_view name);

std::string playlistName(int number);

// For people.
std::string playlistText(int number);

// Sorted.
std::vector<int> playlistNumbers(const Storage& files);

}  // namespace tovi::sim
