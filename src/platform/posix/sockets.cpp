// SPDX-License-Identifier: MIT
#include "platform/sockets.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>

#include "platform/deadline.h"
#include "platform/posix/descriptors.h"
#include "platform/system.h"

namespace tovi::platform {

namespace {

// Waits for an event; false, with EAGAIN, when the deadline has passed or the wait is stopped.
// After any event the caller tries its call again: only that tells what happened.
bool awaitEvent(int descriptor, short event, const Deadline& deadline, Stop stop) {
  for (;;) {
    const int remaining = deadline.remainingMs(stop);
    if (remaining == 0 || isStopped(stop)) {
      errno = EAGAIN;
      return false;
    }
    pollfd watched{descriptor, event, 0};
    const int ready = ::poll(&watched, 1, remaining);
    if (ready < 0 && errno != EINTR) return false;
    if (ready <= 0) continue;
    // An error report that the retried call does not take away, such as a time stamp in the error
    // queue of a host's socket, would turn the wait into a busy loop.
    if ((watched.revents & event) == 0) pauseFor(1);
    return true;
  }
}

// Whether a call that never waits by itself shall be tried again.
bool wouldWait() { return errno == EINTR || errno == EAGAIN || errno == EWOULDBLOCK; }

// Connects a non-blocking socket; 0 or the error number.
int connectWithin(int descriptor, const sockaddr_in& peer, const Deadline& deadline, Stop stop) {
  if (::connect(descriptor, reinterpret_cast<const sockaddr*>(&peer), sizeof peer) == 0) return 0;
  if (errno != EINPROGRESS && errno != EINTR) return errno;
  if (!awaitEvent(descriptor, POLLOUT, deadline, stop)) {
    return errno == EAGAIN ? ETIMEDOUT : errno;
  }
  int error = 0;
  socklen_t size = sizeof error;
  return ::getsockopt(descriptor, SOL_SOCKET, SO_ERROR, &error, &size) == 0 ? error : errno;
}

}  // namespace

Socket adoptDescriptor(int descriptor) {
  if (descriptor < 0) return kInvalidSocket;
  if (descriptor <= STDERR_FILENO) {
    const int moved = ::fcntl(descriptor, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    const int error = errno;
    ::close(descriptor);
    errno = error;
    if (moved < 0) return kInvalidSocket;
    descriptor = moved;
  }
  return static_cast<Socket>(descriptor);
}

std::optional<sockaddr_in> ipv4Address(const char* address, std::uint16_t port) {
  sockaddr_in result{};
  if (address == nullptr || ::inet_aton(address, &result.sin_addr) == 0) {
    errno = EINVAL;
    return std::nullopt;
  }
  result.sin_family = AF_INET;
  result.sin_port = htons(port);
  return result;
}

StartUp startUpSockets() { return StartUp::Ready; }
void cleanUpSockets() {}

// It never blocks by itself: waits are bounded here, and a blocking connect that a signal
// interrupts could not be resumed.
Socket openSocket() {
  return adoptDescriptor(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
}

void closeSocket(Socket socket) { ::close(descriptorOf(socket)); }

void setTimeouts(Socket socket, int milliseconds) {
  const int bounded = std::max(milliseconds, 0);
  timeval value{};
  value.tv_sec = bounded / 1000;
  value.tv_usec = bounded % 1000 * 1000L;
  for (const int option : {SO_SNDTIMEO, SO_RCVTIMEO}) {
    ::setsockopt(descriptorOf(socket), SOL_SOCKET, option, &value, sizeof value);
  }
}

int receiveTimeout(Socket socket) {
  timeval value{};
  socklen_t size = sizeof value;
  if (::getsockopt(descriptorOf(socket), SOL_SOCKET, SO_RCVTIMEO, &value, &size) != 0) return 0;
  if (value.tv_sec >= INT_MAX / 1000) return INT_MAX;
  // Rounded up: a fraction of a millisecond is not "none".
  return static_cast<int>(value.tv_sec * 1000 + (value.tv_usec + 999) / 1000);
}

bool connectSocket(Socket socket, const char* address, std::uint16_t port, int timeoutMs,
                   Stop stop) {
  const auto peer = ipv4Address(address, port);
  if (!peer) return false;
  const int error =
      connectWithin(descriptorOf(socket), *peer, Deadline::ofTimeout(timeoutMs), stop);
  errno = error;
  return error == 0;
}

bool isQuiet(Socket socket) {
  pollfd watched{descriptorOf(socket), POLLIN, 0};
  return ::poll(&watched, 1, 0) == 0;
}

int sendAll(Socket socket, std::string_view bytes, int timeoutMs, Stop stop) {
  if (bytes.size() > INT_MAX) {
    errno = EMSGSIZE;
    return -1;
  }
  const int descriptor = descriptorOf(socket);
  // One deadline for the whole, or a peer that reads a byte now and then would stretch it for ever.
  const Deadline deadline = Deadline::ofTimeout(timeoutMs);
  for (std::string_view rest = bytes; !rest.empty();) {
    const ssize_t taken = ::send(descriptor, rest.data(), rest.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
    if (taken >= 0) {
      rest.remove_prefix(static_cast<std::size_t>(taken));
    } else if (!wouldWait() || !awaitEvent(descriptor, POLLOUT, deadline, stop)) {
      return -1;
    }
  }
  return static_cast<int>(bytes.size());
}

int receiveSome(Socket socket, std::span<char> buffer, int timeoutMs, Stop stop) {
  // Into no room at all the system receives 0 bytes, which would read as the peer's end.
  if (buffer.empty()) {
    errno = EINVAL;
    return -1;
  }
  const int descriptor = descriptorOf(socket);
  const std::size_t room = std::min<std::size_t>(buffer.size(), INT_MAX);
  const Deadline deadline = Deadline::ofTimeout(timeoutMs);
  // A controller takes its time: a look before that would be a call in vain.
  while (awaitEvent(descriptor, POLLIN, deadline, stop)) {
    const ssize_t received = ::recv(descriptor, buffer.data(), room, MSG_DONTWAIT);
    if (received >= 0 || !wouldWait()) return static_cast<int>(received);
  }
  return -1;
}

int lastSocketError() { return errno; }

}  // namespace tovi::platform
