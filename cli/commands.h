// The command line's side of each operation.
#pragma once

#include <CLI/CLI.hpp>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "cli/output.h"

namespace tovi::cli {

using Action = std::function<Result(ToviTraffic&)>;

// The arguments of one command. Each call declares one and gives where its value will stand once
// the command line is read.
class Arguments {
 public:
  explicit Arguments(CLI::App& command) : mCommand(command) {}

  std::shared_ptr<int> number(const std::string& name, const std::string& help, int least,
                              int most);
  std::shared_ptr<std::string> text(const std::string& name, const std::string& help);
  std::shared_ptr<bool> onOff(const std::string& name, const std::string& help);

 private:
  CLI::App& mCommand;
};

// All commands of one program; knows afterwards which one was given.
class Commands {
 public:
  explicit Commands(CLI::App& app) : mApp(app) {}

  // Later commands stand under this heading in the help.
  void group(const std::string& title) { mGroup = title; }

  // `declare` declares the arguments and gives what to do with them.
  void add(const std::string& name, const std::string& help,
           const std::function<Action(Arguments&)>& declare);

  // The command that was given, its name included.
  const std::string& chosen() const { return mChosen; }
  Result run(ToviTraffic& traffic) const { return mAction(traffic); }

 private:
  CLI::App& mApp;
  std::string mGroup;
  std::string mChosen;
  Action mAction;
};

void addDeviceCommands(Commands& commands);

}  // namespace tovi::cli
