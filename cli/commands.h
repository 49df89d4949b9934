// SPDX-License-Identifier: MIT
// The commands of the program.
#pragma once

#include <cstdio>
#include <functional>
#include <memory>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include "cli/argument.h"
#include "cli/method.h"
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

// How what a method returns is shown. Behind a pointer there is a record of the caller's, or none.
template <class Returned>
using Shown = Json (*)(const std::remove_pointer_t<Returned>&);

// A query: what the method returns is the result.
template <class Returned, class... Parameters>
auto asks(Returned (ToviTraffic::*method)(Parameters...), Shown<Returned> show = shown) {
  return [method, show](Call& call, const auto&... values) {
    const Returned returned = (call.traffic.*method)(passed<Parameters>(values)...);
    if constexpr (std::is_pointer_v<Returned>) {
      const std::unique_ptr<std::remove_pointer_t<Returned>> record(returned);
      return ofAnswer(call.traffic, record == nullptr ? Json() : show(*record));
    } else {
      return ofAnswer(call.traffic, show(returned));
    }
  };
}

// A query for a text that the library hands over as an array.
inline auto asks(char* (ToviTraffic::*method)()) {
  return [method](Call& call) {
    char* text = (call.traffic.*method)();
    const Json value = text == nullptr ? Json() : Json(text);
    deleteArry(&text);
    return ofAnswer(call.traffic, value);
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

  // The command of a method: `operation` is called with the values of the arguments.
  template <class Operation, class... Arguments>
  void add(const Method& method, const std::string& help, Operation operation,
           const Arguments&... arguments) {
    const std::string name = method.command();
    for (CLI::App* parent : mParents) {
      CLI::App& command = addTo(*parent, method, help);
      // In braces, as those are worked through from left to right.
      const std::tuple values{argumentOf(method, arguments).declare(command)...};
      whenGiven(command, [this, name, operation, values] {
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
  CLI::App& addTo(CLI::App& parent, const Method& method, const std::string& help) const;
  static void whenGiven(CLI::App& command, std::function<void()> action);

  std::vector<CLI::App*> mParents;
  std::string mGroup;
  std::string mChosen;
  std::function<Result(Call&)> mAction;
};

}  // namespace tovi::cli
