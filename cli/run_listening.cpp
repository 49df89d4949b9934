// SPDX-License-Identifier: MIT
#include "cli/run.h"
#include "platform/deadline.h"
#include "platform/listener.h"

namespace tovi::cli {
namespace {

// A socket that is closed at the end of its scope.
class OwnSocket {
 public:
  explicit OwnSocket(platform::Socket socket) : mSocket(socket) {}
  ~OwnSocket() {
    if (isOpen()) platform::closeSocket(mSocket);
  }
  OwnSocket(const OwnSocket&) = delete;
  OwnSocket& operator=(const OwnSocket&) = delete;

  bool isOpen() const { return mSocket != platform::kInvalidSocket; }
  platform::Socket get() const { return mSocket; }

 private:
  const platform::Socket mSocket;
};

// A connection that was seen waiting may be gone when it is taken.
platform::Socket awaitController(platform::Socket listener, int waitMs) {
  const auto deadline = platform::Deadline::ofTimeout(waitMs);
  platform::Watched watched{listener, false};
  platform::Socket controller = platform::kInvalidSocket;
  while (controller == platform::kInvalidSocket &&
         platform::waitReadable({&watched, 1}, deadline.remainingMs())) {
    controller = platform::acceptOne(listener);
  }
  return controller;
}

int cannotWait(const tools::Endpoint& endpoint, const char* why) {
  std::fprintf(stderr, "tovi: cannot wait on %s: %s\n", tools::endpointText(endpoint).c_str(), why);
  return tools::kFailed;
}

int listenAndRun(const Job& job) {
  tools::Endpoint endpoint = *job.options.listen;
  const auto address = tools::addressOf(endpoint.host);
  if (!address) return cannotWait(endpoint, tools::kNoSuchHost);
  const OwnSocket listener(platform::listenOn(*address, endpoint.port));
  if (!listener.isOpen()) {
    return cannotWait(endpoint, "the port is taken, or the address is not ours");
  }
  endpoint.port = platform::localPort(listener.get());
  if (!job.options.quiet) {
    std::fprintf(stderr, "tovi: waiting for a controller on %s\n",
                 tools::endpointText(endpoint).c_str());
  }
  const OwnSocket controller(awaitController(listener.get(), job.options.waitMs));
  if (!controller.isOpen()) {
    std::fprintf(stderr, "tovi: no controller dialled in on %s within %d ms; see --wait\n",
                 tools::endpointText(endpoint).c_str(), job.options.waitMs);
    return tools::kFailed;
  }
  ToviTraffic traffic(controller.get());
  return runAlone(job, traffic, platform::peerName(controller.get()));
}

}  // namespace

int runListening(const Job& job) {
  if (platform::startUpSockets() != platform::StartUp::Ready) {
    std::fputs("tovi: the system's sockets cannot be used\n", stderr);
    return tools::kFailed;
  }
  const int status = listenAndRun(job);
  platform::cleanUpSockets();
  return status;
}

}  // namespace tovi::cli
