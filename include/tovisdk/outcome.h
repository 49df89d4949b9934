// SPDX-License-Identifier: MIT
/// @file
/// Why an operation ended as it did.
#ifndef TOVISDK_OUTCOME_H
#define TOVISDK_OUTCOME_H

#include <tovisdk/export.h>

/// What became of an operation. Results tell whether it worked; this tells why it did not.
enum class ToviOutcome {
  Done,             ///< it worked, or nothing was asked yet
  RefusedArgument,  ///< an argument was refused; nothing was sent
  NoConnection,     ///< no connection to the controller could be obtained
  SendFailed,       ///< the connection broke while the request was sent
  NoReply,          ///< no matching reply came in time
  BadReply,         ///< a reply came that is too short or cannot be decoded
  Rejected,         ///< the controller refused a setting; a question that it answers "no" is Done
  LocalFile,        ///< a file on this machine could not be opened, read or written
  Stopped,          ///< the host stopped it
  OutOfMemory,      ///< this machine had no memory for it; what was sent by then is not known
};

/// A short English text, as in "no reply". Static, never null.
TOVISDK_API const char* toviOutcomeText(ToviOutcome outcome);

#endif
