// SPDX-License-Identifier: MIT
// What the command line of tovisim says.
#pragma once

#include <CLI/CLI.hpp>
#include <string>

#include "simulator/server.h"

namespace tovi::sim {

struct CommandLine {
  Options options;
  std::string portFile;
  bool quiet = false;
};

// `line` must outlive the parsing.
void addOptions(CLI::App& app, CommandLine& line);

}  // namespace tovi::sim
