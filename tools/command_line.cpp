// SPDX-License-Identifier: MIT
#include "tools/command_line.h"

#include "platform/console.h"

namespace tovi::tools {

void parseWords(CLI::App& app, int argc, const char* const* argv) {
  const std::vector<std::string> words = platform::commandLineWords(argc, argv);
  // The parser takes them from the back.
  app.parse(std::vector<std::string>(words.rbegin(), words.rend() - 1));
}

}  // namespace tovi::tools
