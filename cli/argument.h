// SPDX-License-Identifier: MIT
// The kinds of argument that commands take. What one theme alone takes stands in its file.
#pragma once

#include <CLI/CLI.hpp>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "cli/method.h"
#include "cli/reading.h"

namespace tovi::cli {

// One argument of a command: how it is called, and how its words become a value.
template <class Value>
struct Argument {
  std::string name;
  std::string help;
  std::function<Value(const std::vector<std::string>&)> read;  // throws Unusable
  bool takesTheRest = false;                                   // every word that follows
  bool required = true;

  // Gives where the value will stand once the command line is read.
  std::shared_ptr<Value> declare(CLI::App& command) const {
    auto value = std::make_shared<Value>();
    const auto take = [read = read, name = name, value](const std::vector<std::string>& words) {
      try {
        *value = read(words);
      } catch (const Unusable& reason) {
        throw CLI::ValidationError(name, reason.what());
      }
      return true;
    };
    CLI::Option* option = command.add_option(name, take, help)->required(required);
    if (takesTheRest)
      option->expected(1, CLI::detail::expected_max_vector_size)->allow_extra_args();
    return value;
  }
};

// An argument of one word, which `read` makes a value of.
template <class Read>
auto argument(const std::string& name, const std::string& help, const Read& read) {
  using Value = decltype(read(std::string()));
  return Argument<Value>{
      name, help, [read](const std::vector<std::string>& words) { return read(words.front()); }};
}

Argument<int> number(const std::string& name, const std::string& help, int least, int most);

Argument<bool> onOff(const std::string& name);

// A text is given in the terminal's encoding, handed over in UTF-8. Lengths are in bytes.
Argument<std::string> text(const std::string& name, const std::string& help, std::size_t least,
                           std::size_t most);

// A text as long as the command's row allows; the help says how long that is.
struct FittingText {
  std::string name;
  std::string help;
};
inline FittingText text(const std::string& name, const std::string& help = "") {
  return {name, help};
}

// An argument as it stands in the command of a method.
Argument<std::string> argumentOf(const Method& method, const FittingText& text);
template <class Value>
const Argument<Value>& argumentOf(const Method&, const Argument<Value>& argument) {
  return argument;
}

}  // namespace tovi::cli
