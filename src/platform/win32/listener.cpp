// SPDX-License-Identifier: MIT
#include "platform/listener.h"

#include <winsock2.h>
#include <ws2tcpip.h>

#include <vector>

#include "platform/deadline.h"
#include "platform/system.h"
#include "platform/win32/handles.h"

namespace tovi::platform {

namespace {

using NameCall = int(WSAAPI*)(SOCKET, sockaddr*, int*);

// The address that getsockname or getpeername tells.
std::optional<sockaddr_in> endOf(Socket socket, NameCall nameCall) {
  sockaddr_in address{};
  int size = sizeof address;
  if (nameCall(socket, reinterpret_cast<sockaddr*>(&address), &size) != 0) return std::nullopt;
  if (address.sin_family != AF_INET) return std::nullopt;
  return address;
}

bool bindAndListen(Socket listener, const sockaddr_in& address, int backlog) {
  // Without it, other programs could take over the port while it is in use.
  const BOOL on = TRUE;
  ::setsockopt(listener, SOL_SOCKET, SO_EXCLUSIVEADDRUSE, reinterpret_cast<const char*>(&on),
               sizeof on);
  return ::bind(listener, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0 &&
         ::listen(listener, backlog) == 0;
}

}  // namespace

Socket listenOn(const std::string& address, std::uint16_t port, int backlog) {
  const auto own = ipv4Address(address.c_str(), port);
  if (!own) return kInvalidSocket;
  const Socket listener = openSocket();
  if (listener == kInvalidSocket) return kInvalidSocket;
  // Non-blocking, because a connection that was seen waiting may be gone when it is taken.
  setBlocking(listener, false);
  if (bindAndListen(listener, *own, backlog)) return listener;
  const int error = ::WSAGetLastError();
  closeSocket(listener);
  ::WSASetLastError(error);
  return kInvalidSocket;
}

std::uint16_t localPort(Socket socket) {
  const auto address = endOf(socket, ::getsockname);
  return address ? ::ntohs(address->sin_port) : std::uint16_t{0};
}

Socket acceptOne(Socket listener) {
  SOCKET handle = INVALID_SOCKET;
  do {
    handle = ::accept(listener, nullptr, nullptr);
  } while (handle == INVALID_SOCKET && ::WSAGetLastError() == WSAECONNRESET);
  // The mode is inherited from the listener.
  if (handle != INVALID_SOCKET) setBlocking(handle, true);
  return adoptHandle(handle);
}

std::string peerName(Socket socket) {
  const auto address = endOf(socket, ::getpeername);
  char text[INET_ADDRSTRLEN] = {};
  if (!address || ::inet_ntop(AF_INET, &address->sin_addr, text, sizeof text) == nullptr) return {};
  return std::string(text) + ":" + std::to_string(::ntohs(address->sin_port));
}

void resetOnClose(Socket socket) {
  const linger hard{1, 0};
  ::setsockopt(socket, SOL_SOCKET, SO_LINGER, reinterpret_cast<const char*>(&hard), sizeof hard);
}

bool waitReadable(std::span<Watched> sockets, int timeoutMs) {
  std::vector<WSAPOLLFD> polled;
  polled.reserve(sockets.size());
  for (Watched& watched : sockets) {
    watched.readable = false;
    // WSAPoll fails as a whole where it is given nothing but invalid sockets.
    if (watched.socket != kInvalidSocket) polled.push_back({watched.socket, POLLRDNORM, 0});
  }
  const Deadline deadline = timeoutMs < 0 ? Deadline::never() : Deadline::after(timeoutMs);
  if (polled.empty()) {
    ::Sleep(timeoutMs < 0 ? INFINITE : static_cast<DWORD>(timeoutMs));
    return false;
  }
  const int ready =
      ::WSAPoll(polled.data(), static_cast<ULONG>(polled.size()), deadline.remainingMs());
  std::size_t next = 0;
  for (Watched& watched : sockets) {
    if (watched.socket == kInvalidSocket) continue;
    // Any report counts, errors too: the call that follows tells which.
    watched.readable = ready > 0 && polled[next].revents != 0;
    ++next;
  }
  return ready > 0;
}

}  // namespace tovi::platform
