// SPDX-License-Identifier: MIT
#include "tests/support/dead_port.h"

#include <netinet/in.h>

namespace tovi::test {

DeadPort::DeadPort() : mSocket(platform::openSocket()) {
  sockaddr_in own{};
  own.sin_family = AF_INET;
  own.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  ::bind(static_cast<int>(mSocket), reinterpret_cast<const sockaddr*>(&own), sizeof own);
}

}  // namespace tovi::test
