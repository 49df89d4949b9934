// SPDX-License-Identifier: MIT
#include "cli/options.h"

#include <tovisdk/tovisdk.h>

#include "cli/hosts.h"
#include "cli/reading.h"
#include "tools/command_line.h"

namespace tovi::cli {
namespace {

CLI::Option* addNumber(CLI::App& app, const std::string& name, const std::string& help, int& target,
                       int least, int most) {
  return app.add_option_function<std::string>(
      name,
      [name, least, most, &target](const std::string& text) {
        try {
          target = numberWithin(text, least, most);
        } catch (const Unusable& reason) {
          throw CLI::ValidationError(name, reason.what());
        }
      },
      help);
}

std::vector<tools::Endpoint> readHosts(const std::string& path) {
  const std::optional<std::string> text = readText(path);
  if (!text) throw CLI::ValidationError("--hosts", "cannot read " + quoted(path));
  try {
    std::vector<tools::Endpoint> hosts = parseHosts(*text);
    if (hosts.empty()) throw Unusable("it names no controller");
    return hosts;
  } catch (const Unusable& reason) {
    throw CLI::ValidationError("--hosts", path + ": " + reason.what());
  }
}

void addTargets(CLI::App& app, Options& options) {
  // With a check, so that only what looks like a controller is taken for one: words that a command
  // leaves over come by here too.
  tools::addParsed<tools::Endpoint>(
      app, "CONTROLLER",
      "Address or name, and port, as in 192.168.1.10:5005\nor sign-north.example:5005",
      options.controller, tools::parseEndpoint, "no controller")
      ->check([](const std::string& text) {
        return tools::parseEndpoint(text) ? "" : "no controller";
      });
  app.add_option_function<std::string>(
         "--hosts", [&options](const std::string& path) { options.hosts = readHosts(path); },
         "Run the command on all controllers of a file: one HOST:PORT a line,\n"
         "# starts a comment; - is standard input")
      ->type_name("FILE");
  addNumber(app, "--jobs", "With --hosts: controllers at a time, 1 to 1024; 16 unless given",
            options.jobs, 1, 1024)
      ->type_name("N");
}

void addSessionOptions(CLI::App& app, Options& options) {
  tools::addParsed<tools::Key>(
      app, "--key",
      "Encipher the exchange: des, aes or sm4, and exactly 8 characters;\nnone unless given",
      options.key, tools::parseKey, tools::kKeyForm)
      ->type_name("CIPHER:PASSWORD");
  addNumber(app, "--timeout",
            "Limit of connecting, a request and its reply together, 0 to 3600000 ms;\n"
            "0 waits for ever, 5000 unless given; each step of a transfer has it anew",
            options.timeoutMs, 0, 3'600'000)
      ->type_name("MS");
}

void addOutputOptions(CLI::App& app, Options& options) {
  app.add_flag("--json", options.json, "Print results as JSON, one line per controller");
  app.add_flag("--quiet", options.quiet, "Print nothing but values and errors");
  addNumber(app, "--log-level",
            "Log from this level on: 0 all, 1 debug, 2 warnings, 3 errors, 4 nothing;\n"
            "4 unless given",
            options.logLevel, 0, 4)
      ->type_name("N");
  app.add_option("--log-dir", options.logDir, "Folder of the log")->type_name("DIR");
  app.set_version_flag("--version", std::string("tovi ") + tovi_version());
}

}  // namespace

CLI::App* addOptions(CLI::App& app, Options& options) {
  // Options may stand behind the command too.
  app.fallthrough();
  app.validate_positionals();
  app.allow_windows_style_options(false);
  app.require_subcommand(1);
  addTargets(app, options);
  addSessionOptions(app, options);
  addOutputOptions(app, options);

  CLI::App* listen =
      app.add_subcommand("listen", "Wait for a controller to dial in and run a command on it");
  listen->group("Controllers that dial in")->require_subcommand(1);
  tools::addParsed<tools::Endpoint>(
      *listen, "PORT",
      "Where to wait, as in 5005, or 192.168.1.2:5005 for one address of this\n"
      "machine; port 0: any free one",
      options.listen, tools::parseListenEndpoint, tools::kListenForm)
      ->required();
  addNumber(*listen, "--wait",
            "Give up after so long, 0 to 86400000 ms; 0 waits for ever, 60000 unless given",
            options.waitMs, 0, 86'400'000)
      ->type_name("MS");
  return listen;
}

void checkOptions(const Options& options) {
  const int ways =
      options.controller.has_value() + options.hosts.has_value() + options.listen.has_value();
  if (ways == 0) throw CLI::RequiredError("CONTROLLER, --hosts or listen");
  if (ways > 1) {
    throw CLI::ValidationError("CONTROLLER", "give one of CONTROLLER, --hosts and listen");
  }
}

void setUpLog(const Options& options) {
  tovi_set_log_level(options.logLevel);
  if (!options.logDir.empty()) tovi_set_log_folder(UTF8_To_string(options.logDir).c_str());
}

void setUp(ToviTraffic& traffic, const Options& options) {
  traffic.setTimeout(options.timeoutMs);
  traffic.setWaiting(ToviWaiting::UntilTimeout);
  const char* password = options.key.text.c_str();
  switch (options.key.cipher) {
    case tools::Cipher::None:
      break;
    case tools::Cipher::Des:
      traffic.setDesKey(password);
      break;
    case tools::Cipher::Aes:
      traffic.setAesKey(password);
      break;
    case tools::Cipher::Sm4:
      traffic.setSM4Key(password);
      break;
  }
}

}  // namespace tovi::cli
