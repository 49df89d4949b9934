// SPDX-License-Identifier: MIT
// What a command line says besides the command.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "tools/endpoint.h"
#include "tools/key.h"

class ToviTraffic;
namespace CLI {
class App;
}

namespace tovi::cli {

struct Options {
  // One of these three tells which controllers are meant.
  std::optional<tools::Endpoint> controller;
  std::optional<std::vector<tools::Endpoint>> hosts;
  std::optional<tools::Endpoint> listen;

  int jobs = 16;
  int waitMs = 60'000;  // for a controller to dial in; 0: no limit
  tools::Key key;
  int timeoutMs = 5000;
  int logLevel = 4;
  std::string logDir;
  bool json = false;
  bool quiet = false;
};

// Declares the options of the program and gives the "listen" command, below which the commands
// stand once more. `options` must outlive the parsing.
CLI::App* addOptions(CLI::App& app, Options& options);

// Throws a CLI::Error unless the controllers are given in exactly one way.
void checkOptions(const Options& options);

// Makes the log, and the time-out and key of one controller's session, as the options say.
void setUpLog(const Options& options);
void setUp(ToviTraffic& traffic, const Options& options);

}  // namespace tovi::cli
