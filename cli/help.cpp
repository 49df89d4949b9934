// SPDX-License-Identifier: MIT
#include "cli/help.h"

#include <sstream>

namespace tovi::cli {
namespace {

constexpr std::size_t kColumnWidth = 36;

// Ranges and units stand in the descriptions, so nothing is said about them twice.
class HelpFormat : public CLI::Formatter {
 public:
  HelpFormat() {
    column_width(kColumnWidth);
    label("Positionals", "Arguments");
  }

  std::string make_option_opts(const CLI::Option* option) const override {
    const bool takesValue = option->nonpositional() && option->get_type_size() != 0;
    return takesValue ? " " + option->get_type_name() : "";
  }

  std::string make_option_usage(const CLI::Option* option) const override {
    const std::string name = option->get_name(true);
    const bool takesTheRest = option->get_expected_max() > 1;
    return (option->get_required() ? name : "[" + name + "]") + (takesTheRest ? " ..." : "");
  }

  // In the list of commands: with its arguments.
  std::string make_subcommand(const CLI::App* command) const override {
    std::stringstream out;
    CLI::detail::format_help(out, withArguments(command), command->get_description(), kColumnWidth);
    return out.str();
  }

  std::string make_usage(const CLI::App* app, std::string) const override {
    if (app->get_parent() == nullptr) {
      return "\nUsage:\n"
             "  tovi CONTROLLER COMMAND\n"
             "  tovi --hosts FILE COMMAND\n"
             "  tovi listen PORT COMMAND\n"
             "  tovi COMMAND --help\n";
    }
    const bool takesCommand = !app->get_subcommands({}).empty();
    return "\nUsage: tovi " +
           (takesCommand ? withArguments(app) + " COMMAND" : "CONTROLLER " + withArguments(app)) +
           "\n";
  }

 private:
  std::string withArguments(const CLI::App* command) const {
    std::string text = command->get_name();
    const auto isPositional = [](const CLI::Option* option) { return option->get_positional(); };
    for (const CLI::Option* option : command->get_options(isPositional)) {
      text += " " + make_option_usage(option);
    }
    return text;
  }
};

}  // namespace

void setHelpFormat(CLI::App& app) {
  app.formatter(std::make_shared<HelpFormat>());
  app.footer(
      "A text that begins with \"-\" stands behind \"--\".\n"
      "Exit status: 0 done, 1 refused or not answered, 2 wrong usage.");
}

}  // namespace tovi::cli
