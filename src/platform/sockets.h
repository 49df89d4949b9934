// SPDX-License-Identifier: MIT
// TCP sockets as the library needs them, whatever the operating system calls them.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "platform/stop.h"

namespace tovi::platform {

// The operating system's own handle, widened; on POSIX the file descriptor's value.
using Socket = std::uint64_t;
inline constexpr Socket kInvalidSocket = ~Socket{0};

enum class StartUp { Ready, Failed, WrongVersion };

// Winsock wants to be started (version 1.1) and cleaned up in pairs; elsewhere both do nothing.
// Only Ready leaves something to clean up.
StartUp startUpSockets();
void cleanUpSockets();

// An IPv4 stream socket that child processes do not inherit, or kInvalidSocket. Never 0, because
// a session takes 0 for "no socket". For the functions below alone: whether it blocks by itself
// differs.
Socket openSocket();
void closeSocket(Socket socket);

// Sets SO_SNDTIMEO, then SO_RCVTIMEO. 0 or less waits without limit.
void setTimeouts(Socket socket, int milliseconds);

// The receive time-out that is set on the socket, in milliseconds; 0: none.
int receiveTimeout(Socket socket);

// Connects a socket of openSocket to an IPv4 address, in any form that inet_addr reads, and a port
// in host byte order, within the time-out; 0 or less waits without limit. Names, nonsense and null
// fail, and so does this, as what follows, soon after it is stopped.
bool connectSocket(Socket socket, const char* address, std::uint16_t port, int timeoutMs,
                   Stop stop = nullptr);

// Whether the peer has sent nothing that was not received yet, and has not closed.
bool isQuiet(Socket socket);

// Sends everything within the time-out, in as many pieces as the system takes it; the number of
// bytes, or -1. A peer that is gone is an error, never a signal. timeoutMs 0 or less waits without
// limit. The socket's own options and blocking mode stay as they are. More than INT_MAX bytes fail.
int sendAll(Socket socket, std::string_view bytes, int timeoutMs, Stop stop = nullptr);

// Waits once, within the time-out, for bytes and takes what is there; 0 when the peer has closed,
// -1 on an error, a time-out or an empty buffer. timeoutMs 0 or less waits without limit.
int receiveSome(Socket socket, std::span<char> buffer, int timeoutMs, Stop stop = nullptr);

// The socket layer's own number for the last failure on this thread. After a send or receive that
// ran out of time: EAGAIN, on Windows WSAETIMEDOUT.
int lastSocketError();

}  // namespace tovi::platform
