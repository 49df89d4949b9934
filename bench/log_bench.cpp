// SPDX-License-Identifier: MIT
// Records of the log.
#include <tovisdk/log.h>

#include "rows.h"
#include "scratch.h"

namespace tovi::bench {
namespace {

constexpr char kText[] = "ToviTraffic::recv start recvProc";

void record(benchmark::State& state) {
  onEach(state, [] {
    tovi_info(kText);
    return true;
  });
}

const bool kAdded = [] {
  add("log record", "ours", [](benchmark::State& state) {
    const Log log;
    record(state);
  });
  add("log record", "lean", [](benchmark::State& state) {
    const LeanLog log;
    onEach(state, [&] {
      log.write(kText);
      return true;
    });
  });
  add("log record, silenced", "ours", [](benchmark::State& state) {
    const Silence silence;
    record(state);
  });
  return true;
}();

}  // namespace
}  // namespace tovi::bench
