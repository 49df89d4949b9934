// SPDX-License-Identifier: MIT
// Wakes a thread that waits for sockets.
#pragma once

#include "platform/sockets.h"

namespace tovi::sim {

// A connection to ourselves: a byte into one end comes out at the other, which is waited for beside
// the sockets that matter.
class WakeUp {
 public:
  bool open();
  void close();

  // From any thread.
  void wake() const;

  // Readable once woken.
  platform::Socket socket() const { return mWoken; }

 private:
  platform::Socket mWake = platform::kInvalidSocket;
  platform::Socket mWoken = platform::kInvalidSocket;
};

}  // namespace tovi::sim
