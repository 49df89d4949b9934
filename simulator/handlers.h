// Commands the controller knows. A new one is a function and a row in the table of its theme; a new
// theme is a file with a table, added to the list in controller.cpp.
#pragma once

#include <optional>
#include <span>

#include "device/command_table.h"
#include "simulator/controller.h"

namespace tovi::sim {

// One command on its way through a handler, with the answers it may give. The texts are for people.
struct Request {
  const device::Command& command;
  View payload;
  State& state;

  // One status byte, 1 or 0.
  Answer accept(std::string asked = {}) const;
  Answer refuse(std::string asked = {}) const;

  // A query's result.
  Answer tell(std::string told, Bytes reply) const;

  // No reply at all.
  Answer keepQuiet(std::string asked = {}) const;
};

using Handler = Answer (*)(const Request&);

struct Row {
  const device::Command& command;
  Handler handler;
  // Where several commands share a code, the first payload byte that means this one.
  std::optional<std::uint8_t> selector = {};
};

std::span<const Row> screenRows();
std::span<const Row> identityRows();

}  // namespace tovi::sim
