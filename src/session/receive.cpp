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
  std::optional<std::string> package = waitsUntilTimeout()
                                           ? receiveUntilTimeout(socket, what, buffer)
                                           : receiveInThreeReads(socket, what, buffer);
  mTraffic.mExchangeEnds = 0;
  if (package) log::info("ToviTraffic::recv recv buf end");
  return package;
}

// The kept bytes are searched first, unless they were already; that counts as a read.
std::optional<std::string> Session::receiveInThreeReads(std::uint64_t socket, short what,
                                                        std::string& buffer) {
  for (int failures = 0;;) {
    std::optional<std::string> package;
    if (hasUnread()) {
      package = searchKept(what);
    } else {
      readOnce(socket, what, buffer, package);
    }
    if (package) return package;
    if (++failures == ToviTraffic::MAX_FAIL_COUNT) {
      log::error("ToviTraffic::recv recv failed count > MAX_FAIL_COUNT");
      return std::nullopt;
    }
    platform::pauseFor(kPauseMs, stop());
    if (platform::isStopped(stop())) return std::nullopt;
  }
}

// Nothing comes any more once the peer has closed or a read has failed, which it does when the time
// is over.
std::optional<std::string> Session::receiveUntilTimeout(std::uint64_t socket, short what,
                                                        std::string& buffer) {
  std::optional<std::string> package = hasUnread() ? searchKept(what) : std::nullopt;
  while (!package && readOnce(socket, what, buffer, package) > 0) {
  }
  if (!package) log::error("ToviTraffic::recv no reply");
  return package;
}

bool Session::hasUnread() const { return wire::Receiver(*mTraffic.mProtocalParser).hasUnread(); }

std::optional<std::string> Session::searchKept(short what) {
  log::info("ToviTraffic::recv start recvProc");
  return wire::Receiver(*mTraffic.mProtocalParser).receive({}, what);
}

// The number of bytes read, 0 at the peer's end, or -1, and the package that they completed.
int Session::readOnce(std::uint64_t socket, short what, std::string& buffer,
                      std::optional<std::string>& package) {
  log::info("ToviTraffic::recv recv start");
  const std::optional<int> left = waitLeft(receiveTimeout(socket));
  const int received = left ? platform::receiveSome(socket, buffer, *left, stop()) : -1;
  if (received == -1) {
    log::info("ToviTraffic::recv recv erron = %d", platform::lastSocketError());
  } else {
    log::info("ToviTraffic::recv start recvProc");
    package =
        wire::Receiver(*mTraffic.mProtocalParser).receive(viewOf(buffer.data(), received), what);
  }
  log::info("ToviTraffic::recv recv start, recv result = %d", received);
  return received;
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
