// SPDX-License-Identifier: MIT
// tovi: every operation of a controller from the command line.
#include <exception>

#include "cli/help.h"
#include "cli/run.h"
#include "cli/themes.h"
#include "platform/console.h"
#include "tools/command_line.h"

namespace {

using namespace tovi::cli;
namespace tools = tovi::tools;

int run(const Options& options, const Commands& commands) {
  std::FILE* results = tovi::platform::takeStandardOutput();
  if (results == nullptr) {
    std::fputs("tovi: standard output cannot be used\n", stderr);
    return tools::kFailed;
  }
  setUpLog(options);
  const Job job{options, commands, results};
  const int status = options.hosts    ? runMany(job)
                     : options.listen ? runListening(job)
                                      : runOne(job);
  if (std::fflush(results) == 0 && std::ferror(results) == 0) return status;
  std::fputs("tovi: the results cannot be written\n", stderr);
  return tools::kFailed;
}

// Words that nothing has taken explain more than what the parser found missing for lack of them.
std::string complaintOf(const CLI::App& app, const Options& options, const CLI::Error& error,
                        bool hasCommand) {
  const bool lacks = error.get_exit_code() == static_cast<int>(CLI::ExitCodes::RequiredError);
  const bool extra = error.get_exit_code() == static_cast<int>(CLI::ExitCodes::ExtrasError);
  const std::vector<std::string> rest = app.remaining();
  if (!lacks && !extra) return error.what();
  if (rest.empty()) return hasCommand || !lacks ? error.what() : "a command is missing";
  const std::string word = quoted(rest.front());
  if (word.starts_with("\"-")) return word + " is no option";
  if (!options.controller && !options.hosts && !options.listen) {
    return word + " is no controller, which is " + tools::kEndpointForm;
  }
  return word + (hasCommand ? " is one argument too many" : " is no command");
}

}  // namespace

int main(int argc, char** argv) try {
  tovi::platform::showUtf8();
  CLI::App app("Sets and reads LED display controllers.", "tovi");
  Options options;
  setHelpFormat(app);
  CLI::App* listen = addOptions(app, options);
  Commands commands({&app, listen});
  addThemes(commands);
  try {
    tools::parseWords(app, argc, argv);
    checkOptions(options);
  } catch (const CLI::Success& request) {  // --help, --version
    return app.exit(request);
  } catch (const CLI::Error& error) {
    const CLI::App& parent = listen->parsed() ? *listen : app;
    const bool hasCommand = !parent.get_subcommands().empty();
    std::fprintf(stderr, "tovi: %s\nTry tovi --help.\n",
                 complaintOf(app, options, error, hasCommand).c_str());
    return tools::kUsage;
  }
  return run(options, commands);
} catch (const std::exception& error) {
  std::fprintf(stderr, "tovi: %s\n", error.what());
  return tovi::tools::kFailed;
}
