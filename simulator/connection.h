// SPDX-License-Identifier: MIT
// One host that is connected: what it has sent so far and what is on its way to it.
#pragma once

#include <chrono>
#include <deque>
#include <string>
#include <utility>
#include <vector>

#include "platform/sockets.h"
#include "simulator/faults.h"
#include "simulator/session.h"
#include "simulator/wire.h"

namespace tovi::sim {

struct Connection {
  using Clock = std::chrono::steady_clock;

  struct Due {
    Clock::time_point when;
    Step step;
  };

  platform::Socket socket;
  std::string peer;
  FrameReader reader = {};
  Session session = {};
  std::deque<Due> due = {};
  bool hangingUp = false;  // a step that ends it is due; requests are not heard any more
  bool ended = false;

  // Nothing is read while a reply is due, so a peer that asks without listening fills no memory.
  bool isListening() const { return due.empty() && !hangingUp && !ended; }

  void add(std::vector<Step> steps) {
    for (Step& step : steps) {
      const Clock::time_point before = due.empty() ? Clock::now() : due.back().when;
      hangingUp = hangingUp || step.end != End::Stay;
      due.push_back({before + std::chrono::milliseconds(step.delayMs), std::move(step)});
    }
  }
};

}  // namespace tovi::sim
