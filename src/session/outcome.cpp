// SPDX-License-Identifier: MIT
#include <tovisdk/outcome.h>

const char* toviOutcomeText(ToviOutcome outcome) {
  switch (outcome) {
    case ToviOutcome::Done:
      return "done";
    case ToviOutcome::RefusedArgument:
      return "argument refused";
    case ToviOutcome::NoConnection:
      return "no connection";
    case ToviOutcome::SendFailed:
      return "the connection broke while sending";
    case ToviOutcome::NoReply:
      return "no reply";
    case ToviOutcome::BadReply:
      return "a reply that cannot be understood";
    case ToviOutcome::Rejected:
      return "refused by the controller";
    case ToviOutcome::LocalFile:
      return "a local file cannot be opened, read or written";
    case ToviOutcome::Stopped:
      return "stopped by the host";
    case ToviOutcome::OutOfMemory:
      return "out of memory";
  }
  return "unknown";
}
