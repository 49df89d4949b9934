#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <string>
#include <string_view>

#include "platform/sockets.h"
#include "simulator/faults.h"
#include "tests/simulator/literal.h"

namespace tovi::sim {

// Only ever waited out by a test that fails.
inline constexpr int kLongMs = 20'000;
inline constexpr std::chrono::milliseconds kLong{kLongMs};

// A host of the crudest kind: one connection, bytes in and out.
class Host {
 public:
  explicit Host(platform::Socket socket) : mSocket(socket) {}
  explicit Host(std::uint16_t port) : mSocket(platform::openSocket()) {
    EXPECT_TRUE(platform::connectSocket(mSocket, "127.0.0.1", port, kLongMs));
  }
  ~Host() { platform::closeSocket(mSocket); }
  Host(const Host&) = delete;
  Host& operator=(const Host&) = delete;

  void send(std::string_view bytes) {
    const std::string text = textOf(literal(bytes));
    EXPECT_EQ(platform::sendAll(mSocket, text, kLongMs), static_cast<int>(text.size()));
  }

  // As many bytes as expected are long, or fewer at the connection's end.
  std::string receive(std::size_t size) {
    Bytes all;
    std::array<char, 256> buffer;
    while (all.size() < size) {
      const auto room = std::min(buffer.size(), size - all.size());
      const int got = platform::receiveSome(mSocket, std::span(buffer).first(room), kLongMs);
      if (got <= 0) break;
      all.insert(all.end(), buffer.begin(), buffer.begin() + got);
    }
    return hex(all);
  }

  void expect(std::string_view bytes) { EXPECT_EQ(receive(literal(bytes).size()), bytes); }

  // How the connection ends once everything has been received.
  End end() {
    char byte = 0;
    const int got = platform::receiveSome(mSocket, {&byte, 1}, kLongMs);
    return got > 0 ? End::Stay : got == 0 ? End::Close : End::Reset;
  }

  void reset() { platform::resetOnClose(mSocket); }

 private:
  platform::Socket mSocket;
};

class Lines {
 public:
  std::function<void(const std::string&)> sink() {
    return [this](const std::string& line) {
      const std::lock_guard lock(mMutex);
      mLines += line + '\n';
      mChanged.notify_all();
    };
  }

  bool waitFor(std::string_view text) {
    std::unique_lock lock(mMutex);
    return mChanged.wait_for(lock, kLong, [&] { return mLines.find(text) != std::string::npos; });
  }

 private:
  std::mutex mMutex;
  std::condition_variable mChanged;
  std::string mLines;
};

}  // namespace tovi::sim
