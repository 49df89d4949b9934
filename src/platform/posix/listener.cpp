// SPDX-License-Identifier: MIT
#include "platform/listener.h"

#include <arpa/inet.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <vector>

#include "platform/deadline.h"
#include "platform/posix/descriptors.h"

namespace tovi::platform {

namespace {

using NameCall = int (*)(int, sockaddr*, socklen_t*);

// The address that getsockname or getpeername tells.
std::optional<sockaddr_in> endOf(Socket socket, NameCall nameCall) {
  sockaddr_in address{};
  socklen_t size = sizeof address;
  if (nameCall(descriptorOf(socket), reinterpret_cast<sockaddr*>(&address), &size) != 0) {
    return std::nullopt;
  }
  if (address.sin_family != AF_INET) return std::nullopt;
  return address;
}

bool bindAndListen(int descriptor, const sockaddr_in& address, int backlog) {
  // A simulator that is started again must not wait for the old connections to fade.
  const int on = 1;
  ::setsockopt(descriptor, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
  return ::bind(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0 &&
         ::listen(descriptor, backlog) == 0;
}

}  // namespace

Socket listenOn(const std::string& address, std::uint16_t port, int backlog) {
  const auto own = ipv4Address(address.c_str(), port);
  if (!own) return kInvalidSocket;
  // Non-blocking, because a connection that was seen waiting may be gone when it is taken.
  const Socket listener =
      adoptDescriptor(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
  if (listener == kInvalidSocket || bindAndListen(descriptorOf(listener), *own, backlog)) {
    return listener;
  }
  const int error = errno;
  closeSocket(listener);
  errno = error;
  return kInvalidSocket;
}

std::uint16_t localPort(Socket socket) {
  const auto address = endOf(socket, ::getsockname);
  return address ? ntohs(address->sin_port) : std::uint16_t{0};
}

Socket acceptOne(Socket listener) {
  int descriptor = -1;
  do {
    descriptor = ::accept4(descriptorOf(listener), nullptr, nullptr, SOCK_CLOEXEC);
  } while (descriptor < 0 && (errno == EINTR || errno == ECONNABORTED));
  return adoptDescriptor(descriptor);
}

std::string peerName(Socket socket) {
  const auto address = endOf(socket, ::getpeername);
  char text[INET_ADDRSTRLEN] = {};
  if (!address || ::inet_ntop(AF_INET, &address->sin_addr, text, sizeof text) == nullptr) return {};
  return std::string(text) + ":" + std::to_string(ntohs(address->sin_port));
}

void resetOnClose(Socket socket) {
  const linger hard{1, 0};
  ::setsockopt(descriptorOf(socket), SOL_SOCKET, SO_LINGER, &hard, sizeof hard);
}

bool waitReadable(std::span<Watched> sockets, int timeoutMs) {
  std::vector<pollfd> polled;
  polled.reserve(sockets.size());
  for (const Watched& watched : sockets) {
    polled.push_back({descriptorOf(watched.socket), POLLIN, 0});
  }
  const Deadline deadline = timeoutMs < 0 ? Deadline::never() : Deadline::after(timeoutMs);
  int ready = 0;
  do {
    ready = ::poll(polled.data(), polled.size(), deadline.remainingMs());
  } while (ready < 0 && errno == EINTR);
  for (std::size_t i = 0; i < sockets.size(); ++i) {
    // Any report counts, errors too: the call that follows tells which.
    sockets[i].readable = ready > 0 && polled[i].revents != 0;
  }
  return ready > 0;
}

}  // namespace tovi::platform
