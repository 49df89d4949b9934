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

int listenAndRun(const Job& job) {
  Endpoint endpoint = *job.options.listen;
  const OwnSocket listener(platform::listenOn(endpoint.address, endpoint.port));
  if (!listener.isOpen()) {
    std::fprintf(stderr, "tovi: cannot wait on %s: the port is taken, or the address is not ours\n",
                 endpointText(endpoint).c_str());
    return kFailed;
  }
  endpoint.port = platform::localPort(listener.get());
  if (!job.options.quiet) {
    std::fprintf(stderr, "tovi: waiting for a controller on %s\n", endpointText(endpoint).c_str());
  }
  const OwnSocket controller(awaitController(listener.get(), job.options.waitMs));
  if (!controller.isOpen()) {
    std::fprintf(stderr, "tovi: no controller dialled in on %s within %d ms; see --wait\n",
                 endpointText(endpoint).c_str(), job.options.waitMs);
    return kFailed;
  }
  ToviTraffic traffic(controller.get());
  return runAlone(job, traffic, platform::peerName(controller.get()));
}

}  // namespace

int runListening(const Job& job) {
  if (platform::startUpSockets() != platform::StartUp::Ready) {
    std::fputs("tovi: the system's sockets cannot be used\n", stderr);
    return kFailed;
  }
  const int status = listenAndRun(job);
  platform::cleanUpSockets();
  return status;
}

}  // namespace tovi::cli
