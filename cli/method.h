// SPDX-License-Identifier: MIT
// The library's methods, as the command table knows them.
#pragma once

#include <array>
#include <initializer_list>
#include <string>
#include <string_view>

#include "wire/command_table.h"

namespace tovi::cli {

// A method and the rows that it sends. A row that the table lacks does not compile.
class Method {
 public:
  consteval Method(const char* name) : Method(name, {name}) {}

  // A method that sends several rows, in their order.
  consteval Method(const char* name, std::initializer_list<wire::Row> steps) : mName(name) {
    for (const wire::Row& row : steps) mSteps.at(mCount++) = &row.command;
  }

  // What people call it: "set-ssh-enabled" for setSSHEnabled.
  std::string command() const;

  // How long the text may be that it takes, which goes out with its first row.
  wire::TextSize textSize() const { return mSteps[0]->text; }

  // The same in words, as in "at most 1024 bytes"; empty where only the frame sets a limit.
  std::string textSizeInWords() const;

  // Its codes, as in "command 0xD2, reply 0xD2; text of at most 1024 bytes".
  std::string onTheWire() const;

 private:
  static constexpr std::size_t kMostSteps = 4;

  std::string_view mName;
  std::array<const wire::Command*, kMostSteps> mSteps = {};
  std::size_t mCount = 0;
};

}  // namespace tovi::cli
