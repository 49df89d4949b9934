// SPDX-License-Identifier: MIT
// Rows of the table: what is ours, and what it is measured beside in the same run.
#pragma once

#include <benchmark/benchmark.h>

#include <string>
#include <utility>

namespace tovi::bench {

// One measurement of a row: "ours", or the name of what stands beside it. It counts the time that
// the processor takes.
template <class Measure>
auto* add(const std::string& row, const std::string& what, Measure measure) {
  return benchmark::RegisterBenchmark((row + "/" + what).c_str(), std::move(measure));
}

// The same of what takes two: what both ends take counts, as if they shared one processor.
template <class Measure>
void addMeeting(const std::string& row, const std::string& what, Measure measure) {
  add(row, what, std::move(measure))->MeasureProcessCPUTime();
}

// Runs an action on so many bytes at a time.
template <class Action>
void onBytes(benchmark::State& state, std::size_t size, Action action) {
  for (auto _ : state) action();
  state.SetBytesProcessed(static_cast<std::int64_t>(size) *
                          static_cast<std::int64_t>(state.iterations()));
}

// Runs an action that says whether it succeeded.
template <class Action>
void onEach(benchmark::State& state, Action action) {
  for (auto _ : state) {
    if (!action()) return state.SkipWithError("failed");
  }
  state.SetItemsProcessed(static_cast<std::int64_t>(state.iterations()));
}

}  // namespace tovi::bench
