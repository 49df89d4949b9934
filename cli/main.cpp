// tovi: every operation of a controller from the command line.
#include <tovisdk/tovisdk.h>
#include <CLI/CLI.hpp>
#include <cstdio>
#include <exception>
#include <string>

#include "cli/commands.h"
#include "cli/endpoint.h"
#include "cli/output.h"
#include "platform/console.h"

namespace {

using namespace tovi::cli;

constexpr int kDone = 0;
constexpr int kFailed = 1;
constexpr int kUsage = 2;
constexpr int kSilentLog = 4;

struct CommandLine {
  std::string controller;
  std::string key;
  int timeoutMs = 5000;
  int logLevel = kSilentLog;
  std::string logDir;
  bool json = false;
  bool quiet = false;
};

void addOptions(CLI::App& app, CommandLine& line) {
  app.add_option("CONTROLLER", line.controller, "Address and port, as in 192.168.1.10:5005")
      ->required()
      ->type_name("HOST:PORT")
      ->check([](const std::string& text) {
        return parseEndpoint(text) ? "" : "\"" + text + "\" is no IPv4 address and port";
      });
  app.add_option("--key", line.key, "Encipher the exchange: des, aes or sm4, and 8 characters")
      ->type_name("CIPHER:PASSWORD")
      ->check([](const std::string& text) {
        return parseKey(text) ? "" : "a key is des:, aes: or sm4: and exactly 8 characters";
      });
  app.add_option("--timeout", line.timeoutMs,
                 "Limit of each send and each read, in milliseconds; 0: none")
      ->check(CLI::Range(0, 3'600'000))
      ->type_name("MS")
      ->capture_default_str();
  app.add_flag("--json", line.json, "Print the result as one line of JSON");
  app.add_flag("--quiet", line.quiet, "Print nothing but values and errors");
  app.add_option("--log-level", line.logLevel,
                 "Log from this level on: 0 all, 1 debug, 2 warnings, 3 errors, 4 nothing")
      ->check(CLI::Range(0, kSilentLog))
      ->type_name("N")
      ->capture_default_str();
  app.add_option("--log-dir", line.logDir, "Folder of the log")->type_name("DIR");
  app.set_version_flag("--version", std::string("tovi ") + tovi_version());
  app.require_subcommand(1);
}

void setKey(ToviTraffic& traffic, const Key& key) {
  switch (key.cipher) {
    case Key::Cipher::None:
      break;
    case Key::Cipher::Des:
      traffic.setDesKey(key.password.c_str());
      break;
    case Key::Cipher::Aes:
      traffic.setAesKey(key.password.c_str());
      break;
    case Key::Cipher::Sm4:
      traffic.setSM4Key(key.password.c_str());
      break;
  }
}

int run(const CommandLine& line, const Commands& commands) {
  // The library prints lines of its own; results go to a stream that it does not know.
  std::FILE* results = tovi::platform::takeStandardOutput();
  if (results == nullptr) {
    std::fputs("tovi: standard output cannot be used\n", stderr);
    return kFailed;
  }
  tovi_set_log_level(line.logLevel);
  if (!line.logDir.empty()) tovi_set_log_folder(line.logDir.c_str());

  const Endpoint endpoint = *parseEndpoint(line.controller);
  ToviTraffic traffic(endpoint.address.c_str(), endpoint.port);
  traffic.setTimeout(line.timeoutMs);
  if (!line.key.empty()) setKey(traffic, *parseKey(line.key));

  const Result result = commands.run(traffic);
  if (line.json) {
    std::fprintf(results, "%s\n", asJson(traffic, result).c_str());
  } else if (result.done && !(line.quiet && result.value.is_null())) {
    std::fprintf(results, "%s\n", asText(result.value).c_str());
  }
  if (!result.done) {
    std::fprintf(stderr, "tovi: %s %s: %s\n", line.controller.c_str(), commands.chosen().c_str(),
                 failureText(traffic, result).c_str());
  }
  const bool shown = std::fflush(results) == 0;
  return result.done && shown ? kDone : kFailed;
}

}  // namespace

int main(int argc, char** argv) try {
  CLI::App app("Sets and reads LED display controllers.", "tovi");
  CommandLine line;
  addOptions(app, line);
  Commands commands(app);
  addDeviceCommands(commands);
  try {
    app.parse(argc, argv);
  } catch (const CLI::Success& request) {  // --help, --version
    return app.exit(request);
  } catch (const CLI::Error& error) {
    std::fprintf(stderr, "tovi: %s\nTry tovi --help.\n", error.what());
    return kUsage;
  }
  return run(line, commands);
} catch (const std::exception& error) {
  std::fprintf(stderr, "tovi: %s\n", error.what());
  return kFailed;
}
