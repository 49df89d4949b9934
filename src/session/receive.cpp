// SPDX-License-Identifier: MIT
// The receive loop.
#include <algorithm>
#include <memory>
#include <new>

#include "foundation/bytes.h"
#include "foundation/log.h"
#include "platform/sockets.h"
#include "platform/system.h"
#include "session/session.h"
#include "wire/frame.h"
#include "wire/packet_receiver.h"

namespace tovi::session {
namespace {

constexpr int kPauseMs = 500;

// A DES parser owns the key it is given, so it gets a copy. One that found no memory for its cipher
// would take every reply for a plain one.
ProtocalParser* newCipherParser(char* key, int mode) {
  std::unique_ptr<char[]> copy(mode == wire::kDes ? newArray(key) : nullptr);
  auto parser = std::make_unique<ProtocalParser>(copy != nullptr ? copy.get() : key, mode);
  copy.release();  // the parser's
  if (!wire::Receiver(*parser).hasCipher()) throw std::bad_alloc();
  return parser.release();
}

}  // namespace

ProtocalParser* Session::newParser() const {
  if (mTraffic.mDesKey != nullptr) {
    log::info("ToviTraffic::recv create protocalParser des mode, des key = %s",
              log::shownKey(mTraffic.mDesKey));
    return newCipherParser(mTraffic.mDesKey, wire::kDes);
  }
  if (mTraffic.mAesKey != nullptr) {
    // The record names the wrong cipher; readers of these logs know it so.
    log::info("ToviTraffic::recv create protocalParser aes mode, des key = %s",
              log::shownKey(mTraffic.mAesKey));
    return newCipherParser(mTraffic.mAesKey, wire::kAes);
  }
  if (mTraffic.mSm4Key != nullptr) {
    log::info("ToviTraffic::recv create protocalParser sm4 mode, sm4 key = %s",
              log::shownKey(mTraffic.mSm4Key));
    return newCipherParser(mTraffic.mSm4Key, wire::kSm4);
  }
  log::info("ToviTraffic::recv create protocalParser normal mode");
  return new ProtocalParser();
}

void Session::renewParser() {
  delete mTraffic.mProtocalParser;
  mTraffic.mProtocalParser = nullptr;
}

// In server mode the socket's options are the host's; a shorter time-out that it has set there
// holds.
int Session::receiveTimeout(std::uint64_t socket) const {
  const int ours = mTraffic.mTimeout;
  if (mTraffic.mSocket == 0) return ours;
  const int own = platform::receiveTimeout(socket);
  if (own == 0 || ours == 0) return std::max(own, ours);
  return std::min(own, ours);
}

std::optional<std::string> Session::receive(std::uint64_t socket, short what, int bufferSize) {
  log::info("ToviTraffic::recv start");
  if (mTraffic.mProtocalParser == nullptr) mTraffic.mProtocalParser = newParser();
  std::string buffer(static_cast<std::size_t>(bufferSize), '\0');
  std::optional<std::string> package;
  for (int failures = 0; !(package = receiveOnce(socket, what, buffer));) {
    if (++failures == ToviTraffic::MAX_FAIL_COUNT) {
      log::error("ToviTraffic::recv recv failed count > MAX_FAIL_COUNT");
      return std::nullopt;
    }
    platform::pauseFor(kPauseMs);
  }
  log::info("ToviTraffic::recv recv buf end");
  return package;
}

// One attempt: the kept bytes first, unless they were searched already.
std::optional<std::string> Session::receiveOnce(std::uint64_t socket, short what,
                                                std::string& buffer) {
  wire::Receiver receiver(*mTraffic.mProtocalParser);
  if (receiver.hasUnread()) {
    log::info("ToviTraffic::recv start recvProc");
    return receiver.receive({}, what);
  }
  log::info("ToviTraffic::recv recv start");
  std::optional<std::string> package;
  const int received = platform::receiveSome(socket, buffer, receiveTimeout(socket));
  if (received == -1) {
    log::info("ToviTraffic::recv recv erron = %d", platform::lastSocketError());
  } else {
    log::info("ToviTraffic::recv start recvProc");
    package = receiver.receive(viewOf(buffer.data(), received), what);
  }
  log::info("ToviTraffic::recv recv start, recv result = %d", received);
  return package;
}

}  // namespace tovi::session

// Kept: the interface names it.
char* ToviTraffic::recv(std::uint64_t socket, short what, int* outLen) {
  return recv(socket, what, outLen, TEMP_SIZE);
}

// Kept: the interface names it.
char* ToviTraffic::recv(std::uint64_t socket, short what, int* outLen, int bufSize) {
  const auto package = tovi::session::Session(*this).receive(socket, what, bufSize);
  if (!package) return nullptr;
  *outLen = static_cast<int>(package->size());
  return tovi::newArray(*package);
}
