// SPDX-License-Identifier: MIT
// Commands the controller knows. A new one is a function and a row in the table of its theme; a new
// theme is a file with a table, added to the list in controller.cpp.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "simulator/controller.h"
#include "wire/command_table.h"

namespace tovi::sim {

struct Request;
using Handler = Answer (*)(const Request&);

// How many payload bytes a command may have.
struct Size {
  std::size_t least = 0;
  std::size_t most = 0;
};
constexpr Size exactly(std::size_t size) { return {size, size}; }
constexpr Size atMost(std::size_t size) { return {0, size}; }
constexpr Size atLeast(std::size_t size) { return {size, SIZE_MAX}; }

struct Row {
  const wire::Command& command;
  Handler handler;
  Size size = {};
  // Where several commands share a code, whether a payload means this one.
  bool (*meant)(View payload) = nullptr;
  // Where a refusal takes more than a single 0.
  Bytes (*refusal)(View payload) = nullptr;
};

template <std::uint8_t kFirst>
bool beginsWith(View payload) {
  return !payload.empty() && payload.front() == kFirst;
}

// One command on its way through a handler, with the answers it may give. The texts are for people.
struct Request {
  const Row& row;
  View payload;
  State& state;
  Storage& files;
  Session& session;

  // One status byte, 1.
  Answer accept(std::string asked = {}) const;

  // A status that says no. What was asked for cannot be put in words, so the bytes are shown.
  Answer refuse() const;
  Answer refuse(std::string why) const;

  // A query's result.
  Answer tell(std::string told, Bytes reply) const;

  // No reply at all.
  Answer keepQuiet(std::string asked = {}) const;
};

Answer refusalOf(const Row& row, View payload, std::string asked);

// One theme after another, in files of the same names.
std::span<const Row> powerRows();
std::span<const Row> brightnessRows();
std::span<const Row> timetableRows();
std::span<const Row> clockRows();
std::span<const Row> displayRows();
std::span<const Row> nowPlayingRows();
std::span<const Row> identityRows();
std::span<const Row> networkRows();
std::span<const Row> wirelessRows();
std::span<const Row> maintenanceRows();
std::span<const Row> secureModeRows();
std::span<const Row> fileRows();
std::span<const Row> playlistRows();
std::span<const Row> updateRows();
std::span<const Row> screenshotRows();

}  // namespace tovi::sim
