// SPDX-License-Identifier: MIT
// The accepting side of TCP, for the simulated controller and for tests.
#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "platform/sockets.h"

namespace tovi::platform {

// Listens on a dotted IPv4 address; port 0 lets the system choose. kInvalidSocket on failure. The
// listening socket is for acceptOne and waitReadable only.
Socket listenOn(const std::string& address, std::uint16_t port, int backlog = 128);

// The port that a socket is bound to, in host byte order; 0 on failure.
std::uint16_t localPort(Socket socket);

// Takes one waiting connection, or kInvalidSocket. Does not wait for one: waitReadable does. The
// connection is blocking and not inherited by child processes.
Socket acceptOne(Socket listener);

// "address:port" of the other end, for messages; empty when unknown.
std::string peerName(Socket socket);

// Makes the next close reset the connection (RST) instead of ending it in order.
void resetOnClose(Socket socket);

struct Watched {
  Socket socket;
  bool readable;  // result: bytes, a connection or the peer's end are waiting
};

// Waits until a socket is readable; false when the time-out passed first. Negative: no limit; 0
// looks without waiting. An error counts as readable, kInvalidSocket never does.
bool waitReadable(std::span<Watched> sockets, int timeoutMs);

}  // namespace tovi::platform
