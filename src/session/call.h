// SPDX-License-Identifier: MIT
// What every public method that meets a controller begins with.
#pragma once

#include <new>
#include <utility>

#include <tovisdk/tovi_traffic.h>

#include "session/session.h"

namespace tovi::session {

// One call of a public method, from its " start" line to its outcome.
class Call {
 public:
  Call(ToviTraffic& traffic, const char* method);

  // Carries out what may want memory, which is nearly everything: `otherwise`, with the outcome
  // OutOfMemory, when there is none. Connections close themselves on the way out.
  template <class Result, class Action>
  Result guarded(Result otherwise, Action action) {
    try {
      return action();
    } catch (const std::bad_alloc&) {
      tellOutOfMemory();
      return otherwise;
    }
  }

  // Ends the call before anything is sent: says why in the log and gives -15.
  int refuse(const char* why);

  void end(ToviOutcome outcome) { mSession.end(outcome); }
  template <class Result>
  Result end(ToviOutcome outcome, Result result) {
    return mSession.end(outcome, std::move(result));
  }
  ToviOutcome outcome() const { return mSession.outcome(); }

  Session session() const { return mSession; }
  const char* method() const { return mMethod; }

 private:
  void tellOutOfMemory();

  Session mSession;
  const char* mMethod;
};

}  // namespace tovi::session
