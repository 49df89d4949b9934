// What every public method that meets a controller begins with.
#pragma once

#include <tovisdk/tovi_traffic.h>

#include "session/session.h"

namespace tovi::session {

// One call of a public method, from its " start" line to its outcome.
class Call {
 public:
  Call(ToviTraffic& traffic, const char* method);

  // Ends the call before anything is sent: says why in the log and gives -15.
  int refuse(const char* why);

  void end(ToviOutcome outcome) { mSession.end(outcome); }
  template <class Result>
  Result end(ToviOutcome outcome, Result result) {
    return mSession.end(outcome, result);
  }
  ToviOutcome outcome() const { return mSession.outcome(); }

  Session session() const { return mSession; }
  const char* method() const { return mMethod; }

 private:
  Session mSession;
  const char* mMethod;
};

}  // namespace tovi::session
