// SPDX-License-Identifier: MIT
// The kinds of argument that commands take. What one theme alone takes stands in its file.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "cli/method.h"
#include "cli/reading.h"

// Its header takes a compiler longer than a whole theme; the few files that need it include it.
namespace CLI {
class App;
}

namespace tovi::cli {

// What an argument is to the reader of the command line: `take` is called with the words that are
// given for it, and may throw Unusable.
struct Placeholder {
  std::string name;
  std::string help;
  bool takesTheRest;
  bool required;
  std::function<void(const std::vector<std::string>&)> take;
};
void declare(CLI::App& command, Placeholder placeholder);

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
    const auto take = [read = read, value](const std::vector<std::string>& words) {
      *value = read(words);
    };
    cli::declare(command, {name, help, takesTheRest, required, take});
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
