// SPDX-License-Identifier: MIT
#include "simulator/wake_up.h"

#include <string>

#include "platform/listener.h"

namespace tovi::sim {
namespace {

constexpr int kWakeMs = 1000;

// A stranger may have been faster; ours is the connection that comes from our own port.
platform::Socket acceptOwn(platform::Socket listener, platform::Socket own) {
  const std::string ours = "127.0.0.1:" + std::to_string(platform::localPort(own));
  for (;;) {
    const platform::Socket accepted = platform::acceptOne(listener);
    if (accepted == platform::kInvalidSocket || platform::peerName(accepted) == ours) {
      return accepted;
    }
    platform::closeSocket(accepted);
  }
}

}  // namespace

bool WakeUp::open() {
  const platform::Socket listener = platform::listenOn("127.0.0.1", 0);
  if (listener == platform::kInvalidSocket) return false;
  mWake = platform::openSocket();
  if (mWake != platform::kInvalidSocket &&
      platform::connectSocket(mWake, "127.0.0.1", platform::localPort(listener), kWakeMs)) {
    mWoken = acceptOwn(listener, mWake);
  }
  platform::closeSocket(listener);
  return mWoken != platform::kInvalidSocket;
}

void WakeUp::close() {
  for (platform::Socket* end : {&mWake, &mWoken}) {
    if (*end != platform::kInvalidSocket) platform::closeSocket(*end);
    *end = platform::kInvalidSocket;
  }
}

void WakeUp::wake() const { platform::sendAll(mWake, "x", kWakeMs); }

}  // namespace tovi::sim
