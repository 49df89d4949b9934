// SPDX-License-Identifier: MIT
// What the command lines of our programs have in common.
#pragma once

#include <CLI/CLI.hpp>
#include <optional>
#include <string>
#include <string_view>

#include "tools/exit_status.h"

namespace tovi::tools {

// An option whose text becomes a value through `parse`; `complaint` says what it should have been,
// without the text, which may be secret.
template <class Value, class Target>
CLI::Option* addParsed(CLI::App& app, const std::string& name, const std::string& help,
                       Target& target, std::optional<Value> (*parse)(std::string_view),
                       const std::string& complaint) {
  return app.add_option_function<std::string>(
      name,
      [name, parse, complaint, &target](const std::string& text) {
        const std::optional<Value> value = parse(text);
        if (!value) throw CLI::ValidationError(name, complaint);
        target = *value;
      },
      help);
}

// Takes the words of the command line. Throws a CLI::Error.
void parseWords(CLI::App& app, int argc, const char* const* argv);

}  // namespace tovi::tools
