// SPDX-License-Identifier: MIT
#include <exception>

#include "cli/run.h"
#include "cli/terminal.h"
#include "platform/console.h"

namespace tovi::cli {
namespace {

void print(const Job& job, const std::string& controller, const Result& result) {
  const bool empty = result.value.is_array() && result.value.empty();
  if (job.options.json) {
    printLine(job.results, asJson(controller, result));
  } else if (result.done && !empty && !(job.options.quiet && result.value.is_null())) {
    printLine(job.results, asText(result.value));
  }
  if (!result.done) {
    std::fprintf(stderr, "tovi: %s %s: %s\n", controller.c_str(), job.commands.chosen().c_str(),
                 failureText(result).c_str());
  }
}

int report(const Job& job, const std::string& controller, const Result& result) {
  print(job, controller, result);
  return result.done ? tools::kDone : tools::kFailed;
}

}  // namespace

Result resultOf(const Job& job, Call& call) try {
  setUp(call.traffic, job.options);
  return job.commands.run(call);
} catch (const std::exception& error) {
  Result result;
  result.trouble = error.what();
  return result;
}

int runAlone(const Job& job, ToviTraffic& traffic, const std::string& controller) {
  Call call{traffic, controller};
  if (!job.options.quiet && platform::isTerminal(stderr)) call.progress = stderr;
  return report(job, controller, resultOf(job, call));
}

Result noSuchHost() {
  Result result;
  result.trouble = tools::kNoSuchHost;
  return result;
}

int runOne(const Job& job) {
  const tools::Endpoint& endpoint = *job.options.controller;
  const std::string controller = tools::endpointText(endpoint);
  const auto address = tools::addressOf(endpoint.host);
  if (!address) return report(job, controller, noSuchHost());
  ToviTraffic traffic(address->c_str(), endpoint.port);
  return runAlone(job, traffic, controller);
}

}  // namespace tovi::cli
