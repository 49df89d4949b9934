// SPDX-License-Identifier: MIT
#include "platform/sockets.h"

#include <winsock2.h>
#include <ws2tcpip.h>

#include <algorithm>
#include <climits>

#include "platform/deadline.h"
#include "platform/system.h"
#include "platform/win32/handles.h"

namespace tovi::platform {

static_assert(static_cast<Socket>(INVALID_SOCKET) == kInvalidSocket);

namespace {

// Smaller than any send buffer: a blocking socket that has been reported writable takes a piece of
// this size at once, so that the wait stays in WSAPoll, where it is bounded.
constexpr std::size_t kPieceSize = 4096;

// Waits for an event; false when the deadline has passed or the wait is stopped. Errors are
// reported as an event: the send or recv that follows tells which.
bool awaitEvent(SOCKET handle, short event, const Deadline& deadline, Stop stop) {
  for (;;) {
    WSAPOLLFD watched{handle, event, 0};
    const int ready = ::WSAPoll(&watched, 1, deadline.remainingMs(stop));
    if (ready != 0) return ready > 0;
    if (deadline.remainingMs() == 0 || isStopped(stop)) {
      ::WSASetLastError(WSAETIMEDOUT);
      return false;
    }
  }
}

// Repeats a call, which may be on a socket that its owner has made non-blocking, until it succeeds,
// fails or the deadline has passed.
template <typename Call>
int untilDone(SOCKET handle, short event, const Deadline& deadline, Stop stop, Call call) {
  for (;;) {
    if (!awaitEvent(handle, event, deadline, stop)) return -1;
    const int result = call();
    if (result != SOCKET_ERROR) return result;
    if (::WSAGetLastError() != WSAEWOULDBLOCK) return -1;
    if (deadline.remainingMs() == 0) {
      ::WSASetLastError(WSAETIMEDOUT);
      return -1;
    }
    // Reported as ready and yet not: give way, so that this does not become a busy loop.
    pauseFor(1);
  }
}

// The outcome of a connect that is under way; 0 or the error number.
int connectOutcome(SOCKET handle, WSAEVENT event, const Deadline& deadline, Stop stop) {
  DWORD waited = WSA_WAIT_TIMEOUT;
  while (waited == WSA_WAIT_TIMEOUT) {
    const int remaining = deadline.remainingMs(stop);
    if (remaining == 0 || isStopped(stop)) return WSAETIMEDOUT;
    const DWORD limit = remaining < 0 ? WSA_INFINITE : static_cast<DWORD>(remaining);
    waited = ::WSAWaitForMultipleEvents(1, &event, FALSE, limit, FALSE);
  }
  WSANETWORKEVENTS happened{};
  if (waited == WSA_WAIT_FAILED || ::WSAEnumNetworkEvents(handle, event, &happened) != 0) {
    return ::WSAGetLastError();
  }
  return happened.iErrorCode[FD_CONNECT_BIT];
}

// An event and not WSAPoll, which on many versions of the system never reports that a connect has
// failed. Selecting the event makes the socket non-blocking.
int connectWithin(SOCKET handle, const sockaddr_in& peer, const Deadline& deadline, Stop stop) {
  const WSAEVENT event = ::WSACreateEvent();
  if (event == WSA_INVALID_EVENT) return ::WSAGetLastError();
  int error = 0;
  if (::WSAEventSelect(handle, event, FD_CONNECT) != 0 ||
      ::connect(handle, reinterpret_cast<const sockaddr*>(&peer), sizeof peer) != 0) {
    error = ::WSAGetLastError();
  }
  if (error == WSAEWOULDBLOCK) error = connectOutcome(handle, event, deadline, stop);
  ::WSAEventSelect(handle, nullptr, 0);
  setBlocking(handle, true);
  ::WSACloseEvent(event);
  return error;
}

}  // namespace

Socket adoptHandle(SOCKET handle) {
  if (handle != INVALID_SOCKET) {
    ::SetHandleInformation(reinterpret_cast<HANDLE>(handle), HANDLE_FLAG_INHERIT, 0);
  }
  return static_cast<Socket>(handle);
}

void setBlocking(SOCKET handle, bool blocking) {
  u_long nonBlocking = blocking ? 0 : 1;
  ::ioctlsocket(handle, static_cast<long>(FIONBIO), &nonBlocking);
}

std::optional<sockaddr_in> ipv4Address(const char* address, std::uint16_t port) {
  sockaddr_in result{};
  // A blank text is an address of zeros to inet_addr, and the last address of all looks like its
  // failure.
  const std::string_view text = address == nullptr ? "" : address;
  result.sin_addr.s_addr = text.empty() || text.front() == ' ' ? INADDR_NONE : ::inet_addr(address);
  if (result.sin_addr.s_addr == INADDR_NONE && text != "255.255.255.255") {
    ::WSASetLastError(WSAEINVAL);
    return std::nullopt;
  }
  result.sin_family = AF_INET;
  result.sin_port = ::htons(port);
  return result;
}

StartUp startUpSockets() {
  WSADATA data{};
  if (::WSAStartup(MAKEWORD(1, 1), &data) != 0) return StartUp::Failed;
  if (data.wVersion == MAKEWORD(1, 1)) return StartUp::Ready;
  ::WSACleanup();
  return StartUp::WrongVersion;
}

void cleanUpSockets() { ::WSACleanup(); }

Socket openSocket() {
  return adoptHandle(::WSASocketW(AF_INET, SOCK_STREAM, 0, nullptr, 0,
                                  WSA_FLAG_OVERLAPPED | WSA_FLAG_NO_HANDLE_INHERIT));
}

void closeSocket(Socket socket) { ::closesocket(socket); }

void setTimeouts(Socket socket, int milliseconds) {
  const DWORD value = static_cast<DWORD>(std::max(milliseconds, 0));
  for (const int option : {SO_SNDTIMEO, SO_RCVTIMEO}) {
    ::setsockopt(socket, SOL_SOCKET, option, reinterpret_cast<const char*>(&value), sizeof value);
  }
}

int receiveTimeout(Socket socket) {
  DWORD value = 0;
  int size = sizeof value;
  if (::getsockopt(socket, SOL_SOCKET, SO_RCVTIMEO, reinterpret_cast<char*>(&value), &size) != 0) {
    return 0;
  }
  return static_cast<int>(std::min<DWORD>(value, INT_MAX));
}

bool connectSocket(Socket socket, const char* address, std::uint16_t port, int timeoutMs,
                   Stop stop) {
  const auto peer = ipv4Address(address, port);
  if (!peer) return false;
  const int error = connectWithin(socket, *peer, Deadline::ofTimeout(timeoutMs), stop);
  ::WSASetLastError(error);
  return error == 0;
}

bool isQuiet(Socket socket) {
  WSAPOLLFD watched{socket, POLLRDNORM, 0};
  return ::WSAPoll(&watched, 1, 0) == 0;
}

int sendAll(Socket socket, std::string_view bytes, int timeoutMs, Stop stop) {
  if (bytes.size() > INT_MAX) {
    ::WSASetLastError(WSAEMSGSIZE);
    return -1;
  }
  // One deadline for the whole, or a peer that reads a byte now and then would stretch it for ever.
  const Deadline deadline = Deadline::ofTimeout(timeoutMs);
  for (std::string_view rest = bytes; !rest.empty();) {
    const int size = static_cast<int>(std::min(rest.size(), kPieceSize));
    const int taken = untilDone(socket, POLLWRNORM, deadline, stop,
                                [&] { return ::send(socket, rest.data(), size, 0); });
    if (taken < 0) return -1;
    rest.remove_prefix(static_cast<std::size_t>(taken));
  }
  return static_cast<int>(bytes.size());
}

int receiveSome(Socket socket, std::span<char> buffer, int timeoutMs, Stop stop) {
  // Into no room at all the system receives 0 bytes, which would read as the peer's end.
  if (buffer.empty()) {
    ::WSASetLastError(WSAEINVAL);
    return -1;
  }
  const int room = static_cast<int>(std::min<std::size_t>(buffer.size(), INT_MAX));
  return untilDone(socket, POLLRDNORM, Deadline::ofTimeout(timeoutMs), stop,
                   [&] { return ::recv(socket, buffer.data(), room, 0); });
}

int lastSocketError() { return ::WSAGetLastError(); }

}  // namespace tovi::platform
