// SPDX-License-Identifier: MIT
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
#include "simulator/server.h"
#include "tests/simulator/literal.h"

namespace tovi::sim {

// Only ever waited out by a test that fails.
inline constexpr int kLongMs = 20'000;
inline constexpr std::chrono::milliseconds kLong{kLongMs};

// Computed with a separate checksum.
inline constexpr std::string_view kSetBrightness = "AA FF FF 07 02 50 CC 38 4A";
inline constexpr std::string_view kAccepted = "AA FF FF 08 01 CC 4E 42";
inline constexpr std::string_view kGetVolume = "AA FF FF A9 CC 42 E1";
inline constexpr std::string_view kVolume50 = "AA FF FF A9 32 CC 8F 8B";

inline Options keyed(std::string_view key) {
  Options options;
  options.key = parseKey(key).value();
  return options;
}

inline Options faulty(std::initializer_list<std::string_view> faults,
                      std::string_view key = "none") {
  Options options = keyed(key);
  for (const std::string_view fault : faults) options.faults.push_back(parseFault(fault).value());
  return options;
}

// Why a simulator does not start.
inline std::string whyNot(const Options& options) {
  Simulator simulator(options);
  EXPECT_FALSE(simulator.start());
  return simulator.error();
}

// A simulator that has been started.
class Running : public Simulator {
 public:
  explicit Running(Options options = {}) : Simulator(std::move(options)) {
    EXPECT_TRUE(start()) << error();
  }
};

// A host of the crudest kind: one connection, bytes in and out.
class Host {
 public:
  explicit Host(platform::Socket socket) : mSocket(socket) {}
  explicit Host(const Simulator& simulator) : mSocket(platform::openSocket()) {
    EXPECT_TRUE(platform::connectSocket(mSocket, "127.0.0.1", simulator.port(), kLongMs));
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

  void ask(std::string_view request, std::string_view reply) {
    send(request);
    expect(reply);
  }

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
