// SPDX-License-Identifier: MIT
// A simulated controller on the network, in this process.
#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "platform/listener.h"
#include "platform/sockets.h"
#include "simulator/cipher.h"
#include "simulator/controller.h"
#include "simulator/exchange.h"
#include "simulator/faults.h"
#include "simulator/wake_up.h"
#include "tools/endpoint.h"

namespace tovi::sim {

using tools::Endpoint;

struct Options {
  Endpoint listen{"127.0.0.1", 0};  // port 0: the system chooses
  std::optional<Endpoint> dial;     // a waiting host to connect to, in place of listening
  Key key;
  State state;
  Storage::Options files;
  std::vector<Fault> faults;

  // Takes one line per exchange, and per frame that was dropped. Runs on the simulator's thread,
  // before the reply is sent; it must not call stop().
  std::function<void(const std::string&)> onLine;
  bool frames = false;  // with the frames taken apart below each line

  std::uint64_t exchangeLimit = 0;    // ends by itself after so many; 0: never
  std::size_t maxConnections = 4096;  // more wait until one ends
};

struct Connection;

// Serves any number of connections on one thread of its own. One start per object.
class Simulator {
 public:
  explicit Simulator(Options options);
  ~Simulator();
  Simulator(const Simulator&) = delete;
  Simulator& operator=(const Simulator&) = delete;

  // Listens, or dials the host, and begins to serve. False with a reason in error().
  bool start();
  const std::string& error() const { return mError; }

  // The port it listens on; 0 when it dials.
  std::uint16_t port() const { return mPort; }

  // Ends every connection and returns when the thread has ended. May be called again.
  void stop();

  // Exchanges so far. One counts when its request has been understood and its line handed out.
  std::uint64_t exchanges() const;
  bool waitForExchanges(std::uint64_t count, std::chrono::milliseconds atMost) const;

  // Whether it has ended: stopped, at the exchange limit, or the dialled host hung up.
  bool waitUntilFinished(std::chrono::milliseconds atMost) const;

  Controller& controller() { return mController; }
  State state() const { return mController.state(); }

 private:
  bool openSockets();
  bool listen(const std::string& address, std::uint16_t port);
  bool dial(const std::string& address, std::uint16_t port);
  void fail(const std::string& what);
  void releaseSockets();

  void run();
  bool finished() const;
  bool mayAccept() const;
  int waitTime() const;
  void acceptOne();
  void addConnection(platform::Socket socket);
  void receive(Connection& connection);
  void serve(Connection& connection, const Received& received);
  void sendDue(Connection& connection);
  void removeEnded();
  void say(const std::string& line) const;

  const Options mOptions;
  Controller mController;
  FaultPlan mFaults;
  std::string mError;
  std::uint16_t mPort = 0;

  platform::Socket mListener = platform::kInvalidSocket;
  WakeUp mWakeUp;
  std::vector<std::unique_ptr<Connection>> mConnections;
  std::chrono::steady_clock::time_point mAcceptAfter{};

  std::atomic<bool> mStopping{false};
  std::mutex mStopMutex;
  bool mStarted = false;
  std::thread mThread;

  mutable std::mutex mProgressMutex;
  mutable std::condition_variable mProgress;
  std::uint64_t mExchanges = 0;
  bool mFinished = false;
};

}  // namespace tovi::sim
