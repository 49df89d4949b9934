// SPDX-License-Identifier: MIT
#include "simulator/command_line.h"

#include <tovisdk/version.h>

#include <vector>

#include "tools/command_line.h"

namespace tovi::sim {
namespace {

constexpr std::uint16_t kUsualPort = 5005;

void addConnecting(CLI::App& app, CommandLine& line) {
  Options& options = line.options;
  options.listen.port = kUsualPort;
  auto* listen = tools::addParsed<Endpoint>(
      app, "--listen",
      "Wait for hosts here, as in 5005 for every address of this\nmachine; port 0: any free one",
      options.listen, tools::parseListenEndpoint, tools::kListenForm);
  listen->type_name("HOST:PORT")->default_str(tools::endpointText(options.listen));
  tools::addParsed<Endpoint>(app, "--dial", "Connect to a host that waits for controllers",
                             options.dial, tools::parseEndpoint,
                             std::string("not ") + tools::kEndpointForm)
      ->type_name("HOST:PORT")
      ->excludes(listen);
  tools::addParsed<Key>(app, "--key", "des, aes or sm4, and a text of 8 characters", options.key,
                        parseKey, tools::kKeyForm)
      ->type_name("CIPHER:TEXT");
  app.add_option("--port-file", line.portFile, "Write the port into a file when ready")
      ->type_name("FILE");
}

void addFaults(CLI::App& app, std::vector<Fault>& faults) {
  const auto read = [&faults](const std::vector<std::string>& texts) {
    for (const std::string& text : texts) {
      const auto fault = parseFault(text);
      if (!fault) throw CLI::ValidationError("--fault", "\"" + text + "\" is no fault; see --help");
      faults.push_back(*fault);
    }
  };
  app.add_option_function<std::vector<std::string>>(
         "--fault", read,
         "Misbehave, in the first COUNT exchanges or in all, of one METHOD alone, from the NTH of "
         "those on; repeatable")
      ->type_name("KIND[=VALUE][@METHOD[#NTH]][:COUNT]")
      ->expected(1)
      ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
  app.footer("Faults, used up in the order given:\n" + faultHelp() +
             "as in --fault no-reply:2, --fault refuse@sendFileContent#3:1 (the third chunk) or\n"
             "--fault refuse@recvFileOverRsp (the word at the end of a file).");
}

}  // namespace

void addOptions(CLI::App& app, CommandLine& line) {
  Options& options = line.options;
  addConnecting(app, line);
  app.add_option("--name", options.state.name, "Device name")->type_name("NAME");
  addFaults(app, options.faults);
  app.add_option("--state", options.files.folder,
                 "Keep files, playlists and timetables in a folder, not in memory")
      ->type_name("DIR");
  app.add_flag("--frames", options.frames, "Take the frames of each exchange apart");
  app.add_flag("--quiet", line.quiet, "Print no exchanges");
  app.add_option("--exit-after", options.exchangeLimit, "End after so many exchanges")
      ->check(CLI::Range(1U, 1'000'000'000U));
  app.set_version_flag("--version", "tovisim " + std::to_string(TOVISDK_VERSION_MAJOR) + "." +
                                        std::to_string(TOVISDK_VERSION_MINOR) + "." +
                                        std::to_string(TOVISDK_VERSION_PATCH));
}

}  // namespace tovi::sim
