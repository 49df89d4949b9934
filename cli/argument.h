// The kinds of argument that commands take.
#pragma once

#include <CLI/CLI.hpp>
#include <ctime>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "cli/reading.h"
#include "cli/timetable.h"

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

Argument<int> number(const std::string& name, const std::string& help, int least, int most);

// "on" or "off".
Argument<bool> onOff(const std::string& name, const std::string& help);

constexpr std::size_t kMostTextBytes = 65515;  // what fits a frame in every mode

// Given in the terminal's encoding, handed over in UTF-8. Lengths are in bytes.
Argument<std::string> text(const std::string& name, const std::string& help, std::size_t least = 0,
                           std::size_t most = kMostTextBytes);

// A text without white space and commas.
Argument<std::string> word(const std::string& name, const std::string& help);

Argument<std::string> digits(const std::string& name, const std::string& help);

Argument<std::string> ipv4(const std::string& name, const std::string& help);

// A text that is a JSON array.
Argument<std::string> jsonArray(const std::string& name, const std::string& help);

// The path of a file that can be read.
Argument<std::string> inputFile(const std::string& name, const std::string& help);

// The path of a file that will be written.
Argument<std::string> outputFile(const std::string& name, const std::string& help);

// What stands in a file, or in standard input for "-".
Argument<std::string> fileText(const std::string& name, const std::string& help);

// A calendar time; without one, "now" was given.
using Moment = std::optional<std::tm>;
Argument<Moment> localMoment(const std::string& name, const std::string& help);
Argument<Moment> utcMoment(const std::string& name, const std::string& help);

// Entries "START END".
Argument<std::vector<TimetableEntry>> timetable();
// Entries "START END VALUE", the value 0 to 255.
Argument<std::vector<TimetableEntry>> timetable(const std::string& value, const std::string& help);

// Pairs "AMBIENT SCREEN".
Argument<std::vector<CurvePoint>> curve();

}  // namespace tovi::cli
