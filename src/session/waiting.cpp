// SPDX-License-Identifier: MIT
// How long an operation waits, and who may end it.
#include <limits>

#include <tovisdk/waiting.h>

#include "foundation/log.h"
#include "platform/system.h"
#include "session/session.h"
#include "wire/packet_receiver.h"

namespace tovi::session {

namespace {

constexpr long long kNever = std::numeric_limits<long long>::max();

}  // namespace

void Session::begin() {
  mTraffic.mCancelled = false;
  mTraffic.mExchangeEnds = 0;
  if (mTraffic.mProtocalParser != nullptr) wire::Receiver(*mTraffic.mProtocalParser).forgetLoss();
}

std::optional<int> Session::waitLeft(int timeoutMs) {
  if (!waitsUntilTimeout()) return timeoutMs;
  const long long now = platform::steadyMs();
  long long& ends = mTraffic.mExchangeEnds;
  if (ends == 0) ends = timeoutMs == 0 ? kNever : now + timeoutMs;
  if (ends == kNever) return 0;
  return now < ends ? std::optional(static_cast<int>(ends - now)) : std::nullopt;
}

// What did not come may have been stopped, or there was no memory to keep it.
void Session::end(ToviOutcome outcome) {
  const bool waited = outcome == ToviOutcome::NoConnection || outcome == ToviOutcome::SendFailed ||
                      outcome == ToviOutcome::NoReply;
  if (waited && platform::isStopped(stop())) {
    outcome = ToviOutcome::Stopped;
  } else if (outcome == ToviOutcome::NoReply && mTraffic.mProtocalParser != nullptr &&
             wire::Receiver(*mTraffic.mProtocalParser).hasLost()) {
    outcome = ToviOutcome::OutOfMemory;
  }
  mTraffic.mOutcome = outcome;
}

}  // namespace tovi::session

void ToviTraffic::setWaiting(ToviWaiting waiting) {
  tovi::log::info("setWaiting start");
  mWaiting = waiting;
}

void ToviTraffic::cancel() { mCancelled = true; }
