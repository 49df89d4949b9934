// The commands of the program.
#pragma once

#include <CLI/CLI.hpp>
#include <cstdio>
#include <functional>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include "cli/argument.h"
#include "cli/output.h"
#include "cli/records.h"

namespace tovi::cli {

// One run of a command on one controller.
struct Call {
  ToviTraffic& traffic;
  std::string controller;         // "192.168.1.10:5005", for people
  bool several = false;           // other controllers get the same command
  std::FILE* progress = nullptr;  // where to draw a progress bar; null: nowhere
};

// What a method takes, from what the argument gave.
template <class Parameter, class Value>
Parameter passed(const Value& value) {
  if constexpr (std::is_same_v<Parameter, const char*>) {
    return value.c_str();
  } else {
    return static_cast<Parameter>(value);
  }
}

// A setting: what the method returns tells whether it worked. Every command is a callable on a call
// and the values of its arguments.
template <class Returned, class... Parameters>
auto sets(Returned (ToviTraffic::*method)(Parameters...)) {
  return [method](Call& call, const auto&... values) {
    ToviTraffic& traffic = call.traffic;
    if constexpr (std::is_void_v<Returned>) {
      (traffic.*method)(passed<Parameters>(values)...);
      return ofOutcome(traffic);
    } else if constexpr (std::is_same_v<Returned, bool>) {
      return ofAcceptance(traffic, (traffic.*method)(passed<Parameters>(values)...));
    } else {
      return ofCode(traffic, (traffic.*method)(passed<Parameters>(values)...));
    }
  };
}

// A query: what the method returns is the result.
template <class Returned, class... Parameters>
auto asks(Returned (ToviTraffic::*method)(Parameters...)) {
  return [method](Call& call, const auto&... values) {
    return ofAnswer(call.traffic, shown((call.traffic.*method)(passed<Parameters>(values)...)));
  };
}

// A query for something that is on or off.
inline auto asksFlag(int (ToviTraffic::*method)()) {
  return [method](Call& call) { return ofFlag(call.traffic, (call.traffic.*method)()); };
}

// All commands; knows afterwards which one was given.
class Commands {
 public:
  // Every command is added below each of the parents.
  explicit Commands(std::vector<CLI::App*> parents) : mParents(std::move(parents)) {}

  // Later commands stand under this heading in the help.
  void group(const std::string& title) { mGroup = title; }

  template <class Operation, class... Values>
  void add(const std::string& name, const std::string& help, Operation operation,
           const Argument<Values>&... arguments) {
    for (CLI::App* parent : mParents) {
      CLI::App* command = parent->add_subcommand(name, help)->group(mGroup);
      // In braces, as those are worked through from left to right.
      const std::tuple values{arguments.declare(*command)...};
      command->callback([this, name, operation, values] {
        mChosen = name;
        mAction = [operation, values](Call& call) {
          return std::apply([&](const auto&... value) { return operation(call, *value...); },
                            values);
        };
      });
    }
  }

  // The command that was given.
  const std::string& chosen() const { return mChosen; }

  // May run on several threads at once.
  Result run(Call& call) const { return mAction(call); }

 private:
  std::vector<CLI::App*> mParents;
  std::string mGroup;
  std::string mChosen;
  std::function<Result(Call&)> mAction;
};

void addIdentityCommands(Commands& commands);
void addScreenCommands(Commands& commands);
void addDisplayCommands(Commands& commands);
void addScheduleCommands(Commands& commands);
void addFileCommands(Commands& commands);
void addNetworkCommands(Commands& commands);
void addDeviceCommands(Commands& commands);

}  // namespace tovi::cli
