// SPDX-License-Identifier: MIT
#include "session/call.h"

#include "foundation/log.h"

namespace tovi::session {

Call::Call(ToviTraffic& traffic, const char* method) : mSession(traffic), mMethod(method) {
  mSession.begin();
  log::info("%s start", mMethod);
}

int Call::refuse(const char* why) {
  log::error("%s refused: %s", mMethod, why);
  return end(ToviOutcome::RefusedArgument, ToviTraffic::ARGUMENT_ERROR);
}

void Call::tellOutOfMemory() {
  log::error("%s ended: out of memory", mMethod);
  end(ToviOutcome::OutOfMemory);
}

}  // namespace tovi::session
