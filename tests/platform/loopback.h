// SPDX-License-Identifier: MIT
// Two ends of one loopback connection, for tests of the platform layer.
#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <cstddef>
#include <utility>

#include "platform/listener.h"
#include "platform/sockets.h"

namespace tovi::platform::test {

// Far beyond any wait that a test provokes; met only when something hangs.
inline constexpr int kLongMs = 10000;

// More than the system buffers between two ends of a connection.
inline constexpr std::size_t kMoreThanFits = std::size_t{64} << 20;

class OwnedSocket {
 public:
  OwnedSocket() = default;
  explicit OwnedSocket(Socket socket) : socket_(socket) {}
  OwnedSocket(OwnedSocket&& other) noexcept
      : socket_(std::exchange(other.socket_, kInvalidSocket)) {}
  OwnedSocket& operator=(OwnedSocket&& other) noexcept {
    std::swap(socket_, other.socket_);
    return *this;
  }
  ~OwnedSocket() { close(); }

  void close() {
    if (isValid()) closeSocket(std::exchange(socket_, kInvalidSocket));
  }
  bool isValid() const { return socket_ != kInvalidSocket; }
  Socket get() const { return socket_; }

 private:
  Socket socket_ = kInvalidSocket;
};

class LoopbackTest : public testing::Test {
 protected:
  LoopbackTest() { EXPECT_EQ(startUpSockets(), StartUp::Ready); }
  ~LoopbackTest() override { cleanUpSockets(); }

  void connectBothEnds() {
    OwnedSocket listener(listenOn("127.0.0.1", 0));
    near = OwnedSocket(openSocket());
    ASSERT_TRUE(connectSocket(near.get(), "127.0.0.1", localPort(listener.get()), kLongMs));
    Watched waiting[] = {{listener.get(), false}};
    ASSERT_TRUE(waitReadable(waiting, kLongMs));
    far = OwnedSocket(acceptOne(listener.get()));
    ASSERT_TRUE(far.isValid());
  }

  OwnedSocket near, far;
};

class Stopwatch {
 public:
  int elapsedMs() const {
    const auto elapsed = std::chrono::steady_clock::now() - start_;
    return static_cast<int>(std::chrono::floor<std::chrono::milliseconds>(elapsed).count());
  }

 private:
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
};

}  // namespace tovi::platform::test
