#include "cli/commands.h"

namespace tovi::cli {

std::shared_ptr<int> Arguments::number(const std::string& name, const std::string& help, int least,
                                       int most) {
  auto value = std::make_shared<int>();
  mCommand.add_option(name, *value, help)->required()->check(CLI::Range(least, most));
  return value;
}

std::shared_ptr<std::string> Arguments::text(const std::string& name, const std::string& help) {
  auto value = std::make_shared<std::string>();
  mCommand.add_option(name, *value, help)->required()->type_name("TEXT");
  return value;
}

std::shared_ptr<bool> Arguments::onOff(const std::string& name, const std::string& help) {
  auto value = std::make_shared<bool>();
  mCommand
      .add_option_function<std::string>(
          name, [value](const std::string& text) { *value = text == "on"; }, help)
      ->required()
      ->type_name("on|off")
      ->check(CLI::IsMember({"on", "off"}).description(""));
  return value;
}

void Commands::add(const std::string& name, const std::string& help,
                   const std::function<Action(Arguments&)>& declare) {
  CLI::App* command = mApp.add_subcommand(name, help)->group(mGroup);
  Arguments arguments(*command);
  const Action action = declare(arguments);
  command->callback([this, name, action] {
    mChosen = name;
    mAction = action;
  });
}

}  // namespace tovi::cli
