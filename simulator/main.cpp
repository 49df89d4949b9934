// tovisim: a simulated display controller to try hosts against.
#include <tovisdk/version.h>

#include <CLI/CLI.hpp>
#include <atomic>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include "platform/console.h"
#include "platform/paths.h"
#include "simulator/server.h"

namespace {

using namespace tovi::sim;

constexpr int kDone = 0;
constexpr int kFailed = 1;
constexpr int kUsage = 2;

static_assert(std::atomic<bool>::is_always_lock_free, "a signal handler may not wait for a lock");
std::atomic<bool> gAskedToEnd{false};

extern "C" void askToEnd(int signal) {
  gAskedToEnd = true;
  std::signal(signal, SIG_DFL);  // once more ends the program even when its output is stuck
}

// In one piece, as two threads print.
void print(const std::string& line) { std::cout << line + '\n' << std::flush; }

struct CommandLine {
  std::string listen = "127.0.0.1:5005";
  std::string dial;
  std::string key = "none";
  std::string name;
  std::vector<std::string> faults;
  std::string state;
  std::string portFile;
  std::uint64_t exitAfter = 0;
  bool frames = false;
  bool quiet = false;
};

void addOptions(CLI::App& app, CommandLine& line) {
  auto* listen =
      app.add_option("--listen", line.listen, "Wait for hosts here; port 0: any free one");
  app.add_option("--dial", line.dial, "Connect to a host that waits for controllers")
      ->type_name("HOST:PORT")
      ->excludes(listen);
  listen->type_name("HOST:PORT")->capture_default_str();
  app.add_option("--key", line.key, "des, aes or sm4, and a text of 8 characters")
      ->type_name("CIPHER:TEXT");
  app.add_option("--name", line.name, "Device name")->type_name("NAME");
  app.add_option("--fault", line.faults,
                 "Misbehave, in the first COUNT exchanges or in all, of one METHOD alone, from the "
                 "NTH of those on; repeatable")
      ->type_name("KIND[=VALUE][@METHOD[#NTH]][:COUNT]")
      ->expected(1)
      ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
  app.add_option("--state", line.state,
                 "Keep files, playlists and timetables in a folder, not in memory")
      ->type_name("DIR");
  app.add_flag("--frames", line.frames, "Take the frames of each exchange apart");
  app.add_flag("--quiet", line.quiet, "Print no exchanges");
  app.add_option("--port-file", line.portFile, "Write the port into a file when ready")
      ->type_name("FILE");
  app.add_option("--exit-after", line.exitAfter, "End after so many exchanges")
      ->check(CLI::Range(1U, 1'000'000'000U));
  app.set_version_flag("--version", "tovisim " + std::to_string(TOVISDK_VERSION_MAJOR) + "." +
                                        std::to_string(TOVISDK_VERSION_MINOR) + "." +
                                        std::to_string(TOVISDK_VERSION_PATCH));
  app.footer("Faults, used up in the order given:\n" + faultHelp() +
             "as in --fault no-reply:2, --fault refuse@sendFileContent#3:1 (the third chunk) or\n"
             "--fault refuse@recvFileOverRsp (the word at the end of a file).");
}

Endpoint endpointOf(const std::string& option, const std::string& text) {
  const auto endpoint = parseEndpoint(text);
  if (!endpoint) {
    throw CLI::ValidationError(option, "\"" + text + "\" is no ADDRESS:PORT, as in 127.0.0.1:5005");
  }
  return *endpoint;
}

Options optionsOf(const CommandLine& line) {
  Options options;
  options.listen = endpointOf("--listen", line.listen);
  if (!line.dial.empty()) options.dial = endpointOf("--dial", line.dial);
  const auto key = parseKey(line.key);
  if (!key) {
    throw CLI::ValidationError(
        "--key",
        "\"" + line.key + "\" is no key, as in des:12345678 (8 characters after the colon)");
  }
  options.key = *key;
  if (!line.name.empty()) options.state.name = line.name;
  options.files.folder = line.state;
  for (const std::string& text : line.faults) {
    const auto fault = parseFault(text);
    if (!fault) throw CLI::ValidationError("--fault", "\"" + text + "\" is no fault; see --help");
    options.faults.push_back(*fault);
  }
  options.frames = line.frames;
  options.exchangeLimit = line.exitAfter;
  if (!line.quiet) options.onLine = print;
  return options;
}

// Appears at once and whole, since a script may be waiting for it.
bool writePortFile(const std::string& path, std::uint16_t port) {
  const std::filesystem::path whole = tovi::platform::pathOf(path);
  std::filesystem::path unfinished = whole;
  unfinished += ".new";
  std::ofstream file(unfinished);
  file << port << '\n';
  file.close();
  std::error_code error;
  if (file) std::filesystem::rename(unfinished, whole, error);
  if (file && !error) return true;
  std::filesystem::remove(unfinished, error);
  return false;
}

int serve(const CommandLine& line, Options options) {
  std::signal(SIGINT, askToEnd);
  std::signal(SIGTERM, askToEnd);
  const Endpoint listen = options.listen;
  Simulator simulator(std::move(options));
  if (!simulator.start()) {
    std::cerr << "tovisim: " << simulator.error() << std::endl;
    return kFailed;
  }
  if (!line.portFile.empty() && !writePortFile(line.portFile, simulator.port())) {
    std::cerr << "tovisim: cannot write " << line.portFile << std::endl;
    return kFailed;
  }
  print(line.dial.empty()
            ? "tovisim listening on " + endpointText({listen.address, simulator.port()})
            : "tovisim connected to " + line.dial);
  // Hardly anything may be done in a signal handler, so the flag is looked at now and then.
  while (!gAskedToEnd && !simulator.waitUntilFinished(std::chrono::milliseconds(50))) {
  }
  simulator.stop();
  return kDone;
}

}  // namespace

int main(int argc, char** argv) try {
  tovi::platform::showUtf8();
  CLI::App app("A simulated display controller: answers hosts and prints each exchange.",
               "tovisim");
  CommandLine line;
  addOptions(app, line);
  Options options;
  try {
    const std::vector<std::string> words = tovi::platform::commandLineWords(argc, argv);
    // Which takes them from the back.
    app.parse(std::vector<std::string>(words.rbegin(), words.rend() - 1));
    options = optionsOf(line);
  } catch (const CLI::Success& request) {  // --help, --version
    return app.exit(request);
  } catch (const CLI::Error& error) {
    std::cerr << "tovisim: " << error.what() << "\nTry tovisim --help." << std::endl;
    return kUsage;
  }
  return serve(line, std::move(options));
} catch (const std::exception& error) {
  std::fprintf(stderr, "tovisim: %s\n", error.what());
  return kFailed;
}
