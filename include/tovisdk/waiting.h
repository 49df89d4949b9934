// SPDX-License-Identifier: MIT
/// @file
/// How long a reply is waited for.
#ifndef TOVISDK_WAITING_H
#define TOVISDK_WAITING_H

/// What an operation does until its reply is whole; see ToviTraffic::setWaiting.
enum class ToviWaiting {
  /// At most three reads, each bounded by the time-out, with pauses of 500 ms between them. A reply
  /// that comes in more pieces is missed, and each incomplete piece costs a pause.
  ThreeReads,
  /// Reads as long as it takes, without pauses. One time-out bounds connecting, sending and reading
  /// together; in an operation of several steps, such as a transfer, each step has it anew. What is
  /// left of earlier replies is forgotten before each request in client mode.
  UntilTimeout,
};

#endif
