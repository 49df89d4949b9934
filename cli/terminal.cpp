// SPDX-License-Identifier: MIT
#include "cli/terminal.h"

#include "platform/console.h"
#include "tools/printable.h"

namespace tovi::cli {

void printLine(std::FILE* results, const std::string& text) {
  const bool seen = platform::isTerminal(results);
  const std::string line = (seen ? tools::printable(text, tools::Breaks::Kept) : text) + '\n';
  std::fwrite(line.data(), 1, line.size(), results);  // texts may hold zero bytes
}

}  // namespace tovi::cli
