// SPDX-License-Identifier: MIT
#include "controller.h"

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace tovi::bench {
namespace {

constexpr char kEndFlag = '\xCC';
constexpr std::size_t kChecksumSize = 2;

[[noreturn]] void fail(const char* what) {
  std::perror(what);
  std::exit(1);
}

sockaddr_in loopback(unsigned short port) {
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(port);
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  return address;
}

// Counts frames in pieces of a stream. Payloads are escaped: the flag only ever ends a frame, and
// the checksum follows.
class Ends {
 public:
  std::size_t in(std::string_view bytes) {
    std::size_t count = 0;
    while (!bytes.empty()) {
      if (mLeft > 0) {
        const std::size_t taken = std::min(mLeft, bytes.size());
        bytes.remove_prefix(taken);
        mLeft -= taken;
        if (mLeft == 0) ++count;
        continue;
      }
      const std::size_t flag = bytes.find(kEndFlag);
      if (flag == std::string_view::npos) break;
      bytes.remove_prefix(flag + 1);
      mLeft = kChecksumSize;
    }
    return count;
  }

 private:
  std::size_t mLeft = 0;
};

}  // namespace

Controller::Controller(std::vector<std::string> answers)
    : mAnswers(std::move(answers)), mListener(::socket(AF_INET, SOCK_STREAM, 0)) {
  sockaddr_in address = loopback(0);
  socklen_t size = sizeof address;
  auto* const any = reinterpret_cast<sockaddr*>(&address);
  if (::bind(mListener, any, size) != 0 || ::listen(mListener, SOMAXCONN) != 0 ||
      ::getsockname(mListener, any, &size) != 0) {
    fail("listen");
  }
  mPort = ntohs(address.sin_port);
  mThread = std::thread([this] {
    for (int socket; (socket = ::accept(mListener, nullptr, nullptr)) >= 0; ::close(socket)) {
      serve(socket);
    }
  });
}

Controller::~Controller() {
  ::shutdown(mListener, SHUT_RDWR);
  mThread.join();
  ::close(mListener);
}

void Controller::serve(int socket) const {
  std::vector<char> room(256 * 1024);
  Ends ends;
  std::size_t answered = 0;
  for (ssize_t got; (got = ::recv(socket, room.data(), room.size(), 0)) > 0;) {
    for (std::size_t n = ends.in({room.data(), static_cast<std::size_t>(got)}); n > 0; --n) {
      sendAll(socket, mAnswers[std::min(answered++, mAnswers.size() - 1)]);
    }
  }
}

int connectTo(unsigned short port) {
  const int socket = ::socket(AF_INET, SOCK_STREAM, 0);
  const sockaddr_in address = loopback(port);
  if (::connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
    fail("connect");
  }
  return socket;
}

void sendAll(int socket, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t sent = ::send(socket, bytes.data(), bytes.size(), MSG_NOSIGNAL);
    if (sent < 0) return;
    bytes.remove_prefix(static_cast<std::size_t>(sent));
  }
}

bool awaitFrame(int socket) {
  char room[256];
  Ends ends;
  for (ssize_t got; (got = ::recv(socket, room, sizeof room, 0)) > 0;) {
    if (ends.in({room, static_cast<std::size_t>(got)}) > 0) return true;
  }
  return false;
}

}  // namespace tovi::bench
