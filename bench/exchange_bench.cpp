// SPDX-License-Identifier: MIT
// A request and its reply, beside sockets that send a frame which is ready and read until one has
// come.
#include <tovisdk/tovi_traffic.h>
#include <unistd.h>

#include <memory>

#include "controller.h"
#include "material.h"
#include "rows.h"
#include "scratch.h"

namespace tovi::bench {
namespace {

constexpr int kLevel = 80;

enum class Mode { Client, Server };

// The connection of a mode in which the controller has dialled in; 0 in the other.
class Connection {
 public:
  Connection(Mode mode, const Controller& controller)
      : mSocket(mode == Mode::Server ? connectTo(controller.port()) : 0) {}
  ~Connection() {
    if (mSocket != 0) ::close(mSocket);
  }
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;
  int socket() const { return mSocket; }

 private:
  int mSocket;
};

std::unique_ptr<ToviTraffic> trafficOf(const Controller& controller, const Connection& connection) {
  if (connection.socket() == 0) {
    return std::make_unique<ToviTraffic>("127.0.0.1", controller.port());
  }
  return std::make_unique<ToviTraffic>(static_cast<std::uint64_t>(connection.socket()));
}

void runOurs(benchmark::State& state, Mode mode) {
  const Controller controller({hex(kAccepted)});
  const Connection connection(mode, controller);
  const auto traffic = trafficOf(controller, connection);
  onEach(state, [&] { return traffic->setBrightness(kLevel) == 1; });
}

void runRaw(benchmark::State& state, Mode mode, const LeanLog* log, int records) {
  const Controller controller({hex(kAccepted)});
  const Connection connection(mode, controller);
  const std::string request = hex(kRequest);
  onEach(state, [&] {
    for (int i = 0; i < records; ++i) log->write("ToviTraffic::recv start recvProc");
    const int socket = mode == Mode::Server ? connection.socket() : connectTo(controller.port());
    sendAll(socket, request);
    const bool answered = awaitFrame(socket);
    if (mode == Mode::Client) ::close(socket);
    return answered;
  });
}

// How many records an exchange writes.
int recordsOf(Mode mode) {
  int records = 0;
  const Controller controller({hex(kAccepted)});
  const Connection connection(mode, controller);
  const auto traffic = trafficOf(controller, connection);
  tovi_set_log_callback([](void* count, int, const char*) { ++*static_cast<int*>(count); },
                        &records);
  traffic->setBrightness(kLevel);
  tovi_set_log_callback(nullptr, nullptr);
  return records;
}

void addMode(const std::string& row, Mode mode) {
  addMeeting(row + ", silenced", "ours", [mode](benchmark::State& state) {
    const Silence silence;
    runOurs(state, mode);
  });
  addMeeting(row + ", silenced", "raw sockets, ready frame",
             [mode](benchmark::State& state) { runRaw(state, mode, nullptr, 0); });
  addMeeting(row + ", log as shipped", "ours", [mode](benchmark::State& state) {
    const Log log;
    runOurs(state, mode);
  });
  addMeeting(row + ", log as shipped", "raw sockets and as many lean records",
             [mode](benchmark::State& state) {
               const LeanLog log;
               runRaw(state, mode, &log, recordsOf(mode));
             });
}

const bool kAdded = [] {
  addMode("exchange, client mode", Mode::Client);
  addMode("exchange, server mode", Mode::Server);
  return true;
}();

}  // namespace
}  // namespace tovi::bench
