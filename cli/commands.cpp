// SPDX-License-Identifier: MIT
#include "cli/commands.h"

#include <CLI/CLI.hpp>

namespace tovi::cli {

CLI::App& Commands::addTo(CLI::App& parent, const Method& method, const std::string& help) const {
  CLI::App& command = *parent.add_subcommand(method.command(), help)->group(mGroup);
  command.footer(parent.get_footer() + "\nOn the wire: " + method.onTheWire() + ".");
  return command;
}

void Commands::whenGiven(CLI::App& command, std::function<void()> action) {
  command.callback(std::move(action));
}

}  // namespace tovi::cli
