// SPDX-License-Identifier: MIT
// Running the chosen command; each gives the program's exit status.
#pragma once

#include <cstdio>
#include <string>

#include "cli/commands.h"
#include "cli/options.h"
#include "tools/exit_status.h"

namespace tovi::cli {

// What a run needs to know. Results go to a stream of their own, since the library prints lines to
// the standard output.
struct Job {
  const Options& options;
  const Commands& commands;
  std::FILE* results;
};

int runOne(const Job& job);
int runMany(const Job& job);
int runListening(const Job& job);

// Runs it on one controller; a failure of the program's own becomes a result too.
Result resultOf(const Job& job, Call& call);

// Runs it on the one controller there is, and prints the result.
int runAlone(const Job& job, ToviTraffic& traffic, const std::string& controller);

// Of a controller whose name leads nowhere.
Result noSuchHost();

}  // namespace tovi::cli
