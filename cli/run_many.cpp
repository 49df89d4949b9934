// SPDX-License-Identifier: MIT
#include <algorithm>
#include <atomic>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>

#include "cli/run.h"
#include "cli/terminal.h"

namespace tovi::cli {
namespace {

// Prints a line per controller, in their order, each as soon as those before it are there.
class Report {
 public:
  Report(const Job& job, const std::vector<tools::Endpoint>& hosts)
      : mJob(job), mHosts(hosts), mResults(hosts.size()) {}

  void add(std::size_t index, Result result) {
    const std::lock_guard lock(mMutex);
    (result.done ? mDone : mFailed) += 1;
    mResults[index] = std::move(result);
    for (; mNext < mResults.size() && mResults[mNext]; ++mNext) {
      print(tools::endpointText(mHosts[mNext]), *mResults[mNext]);
      mResults[mNext]->value = {};
    }
    std::fflush(mJob.results);
  }

  // The last line, which is no JSON and none of the values.
  void summarize() const {
    if (mJob.options.quiet) return;
    std::fprintf(mJob.options.json ? stderr : mJob.results, "%d done, %d failed\n", mDone, mFailed);
  }

  bool allDone() const { return mFailed == 0; }

 private:
  void print(const std::string& controller, const Result& result) {
    std::string line;
    if (mJob.options.json) {
      line = asJson(controller, result);
    } else if (mJob.options.quiet && result.done && result.value.is_null()) {
      return;
    } else {
      line = controller + "  " + (result.done ? asLine(result.value) : failureText(result));
    }
    printLine(mJob.results, line);
  }

  const Job& mJob;
  const std::vector<tools::Endpoint>& mHosts;
  std::mutex mMutex;
  std::vector<std::optional<Result>> mResults;
  std::size_t mNext = 0;
  int mDone = 0;
  int mFailed = 0;
};

Result runOn(const Job& job, const tools::Endpoint& endpoint) {
  const auto address = tools::addressOf(endpoint.host);
  if (!address) return noSuchHost();
  ToviTraffic traffic(address->c_str(), endpoint.port);
  Call call{traffic, tools::endpointText(endpoint)};
  call.several = true;
  return resultOf(job, call);
}

}  // namespace

int runMany(const Job& job) {
  const std::vector<tools::Endpoint>& hosts = *job.options.hosts;
  Report report(job, hosts);
  std::atomic<std::size_t> next{0};
  const auto work = [&] {
    for (std::size_t i = 0; (i = next++) < hosts.size();) report.add(i, runOn(job, hosts[i]));
  };
  const std::size_t jobs = std::min(static_cast<std::size_t>(job.options.jobs), hosts.size());
  std::vector<std::thread> helpers;
  try {
    while (helpers.size() + 1 < jobs) helpers.emplace_back(work);
  } catch (const std::system_error&) {
    // As many as the system allows; this thread works too.
  }
  work();
  for (std::thread& helper : helpers) helper.join();
  report.summarize();
  return report.allDone() ? tools::kDone : tools::kFailed;
}

}  // namespace tovi::cli
