// SPDX-License-Identifier: MIT
// tovisim: a simulated display controller to try hosts against.
#include <chrono>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "platform/console.h"
#include "platform/paths.h"
#include "simulator/command_line.h"
#include "tools/command_line.h"
#include "tools/interrupt.h"

namespace {

using namespace tovi::sim;
namespace tools = tovi::tools;

// In one piece, as two threads print.
void print(const std::string& line) { std::cout << line + '\n' << std::flush; }

int fail(const std::string& why) {
  std::cerr << "tovisim: " + why + '\n';
  return tools::kFailed;
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

int serve(CommandLine line) {
  tools::stopOnInterrupt();
  if (!line.quiet) line.options.onLine = print;
  Simulator simulator(line.options);
  if (!simulator.start()) return fail(simulator.error());
  if (!line.portFile.empty() && !writePortFile(line.portFile, simulator.port())) {
    return fail("cannot write " + line.portFile);
  }
  const Options& options = line.options;
  print(options.dial ? "tovisim connected to " + tools::endpointText(*options.dial)
                     : "tovisim listening on " +
                           tools::endpointText({options.listen.host, simulator.port()}));
  // Hardly anything may be done in a signal handler, so the flag is looked at now and then.
  while (!tools::interrupted() && !simulator.waitUntilFinished(std::chrono::milliseconds(50))) {
  }
  simulator.stop();
  return tools::kDone;
}

}  // namespace

int main(int argc, char** argv) try {
  tovi::platform::showUtf8();
  CLI::App app("A simulated display controller: answers hosts and prints each exchange.",
               "tovisim");
  CommandLine line;
  addOptions(app, line);
  try {
    tools::parseWords(app, argc, argv);
  } catch (const CLI::Success& request) {  // --help, --version
    return app.exit(request);
  } catch (const CLI::Error& error) {
    std::cerr << "tovisim: " << error.what() << "\nTry tovisim --help." << std::endl;
    return tools::kUsage;
  }
  return serve(line);
} catch (const std::exception& error) {
  std::fprintf(stderr, "tovisim: %s\n", error.what());
  return tovi::tools::kFailed;
}
