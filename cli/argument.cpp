// SPDX-License-Identifier: MIT
#include "cli/argument.h"

#include <CLI/CLI.hpp>
#include <cctype>
#include <utility>

namespace tovi::cli {

void declare(CLI::App& command, Placeholder placeholder) {
  const auto take = [name = placeholder.name,
                     take = std::move(placeholder.take)](const std::vector<std::string>& words) {
    try {
      take(words);
    } catch (const Unusable& reason) {
      throw CLI::ValidationError(name, reason.what());
    }
    return true;
  };
  CLI::Option* option = command.add_option(placeholder.name, take, placeholder.help);
  option->required(placeholder.required);
  if (placeholder.takesTheRest) {
    option->expected(1, CLI::detail::expected_max_vector_size)->allow_extra_args();
  }
}

Argument<int> number(const std::string& name, const std::string& help, int least, int most) {
  return argument(name, help, [least, most](const std::string& given) {
    return numberWithin(given, least, most);
  });
}

Argument<bool> onOff(const std::string& name) {
  return argument(name, "on or off", [](const std::string& given) {
    if (given != "on" && given != "off") throw Unusable(quoted(given) + " is neither on nor off");
    return given == "on";
  });
}

Argument<std::string> text(const std::string& name, const std::string& help, std::size_t least,
                           std::size_t most) {
  return argument(name, help, [least, most](const std::string& given) {
    if (given.size() < least || given.size() > most) {
      const std::string room = most == wire::TextSize{}.most
                                   ? std::to_string(least) + " or more"
                                   : std::to_string(least) + " to " + std::to_string(most);
      throw Unusable("a text of " + std::to_string(given.size()) + " bytes, where " + room +
                     " are taken");
    }
    return given;
  });
}

Argument<std::string> argumentOf(const Method& method, const FittingText& fitting) {
  std::string size = method.textSizeInWords();
  std::string help = fitting.help;
  if (help.empty() && !size.empty()) {
    size.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(size.front())));
  } else if (!size.empty()) {
    help += ", ";
  }
  const auto [least, most] = method.textSize();
  return text(fitting.name, help + size, least, most);
}

}  // namespace tovi::cli
