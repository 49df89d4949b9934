// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "platform/listener.h"

namespace tovi::test {

// A port of 127.0.0.1 that refuses connections for as long as this lives: it is bound, so that
// nobody else is given it, and nobody listens.
class DeadPort {
 public:
  DeadPort();
  ~DeadPort() { platform::closeSocket(mSocket); }
  DeadPort(const DeadPort&) = delete;
  DeadPort& operator=(const DeadPort&) = delete;

  std::uint16_t number() const { return platform::localPort(mSocket); }

 private:
  platform::Socket mSocket;
};

}  // namespace tovi::test
