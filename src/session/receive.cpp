// The receive loop.
#include <tovisdk/tovi_traffic.h>

#include <algorithm>
#include <cstring>
#include <memory>

#include "foundation/log.h"
#include "platform/sockets.h"
#include "platform/system.h"
#include "wire/frame.h"

namespace {

constexpr int kPauseMs = 500;

// A parser owns the key it is given, so it gets a copy.
ProtocalParser* newCipherParser(const char* key, int mode) {
  const std::size_t size = std::strlen(key) + 1;
  std::unique_ptr<char[]> copy(new char[size]);
  std::memcpy(copy.get(), key, size);
  return new ProtocalParser(copy.release(), mode);
}

}  // namespace

ProtocalParser* ToviTraffic::newParser() const {
  using tovi::log::shownKey;
  if (mDesKey != nullptr) {
    tovi::log::info("ToviTraffic::recv create protocalParser des mode, des key = %s",
                    shownKey(mDesKey));
    return newCipherParser(mDesKey, tovi::wire::kDes);
  }
  if (mAesKey != nullptr) {
    // The record names the wrong cipher; readers of these logs know it so.
    tovi::log::info("ToviTraffic::recv create protocalParser aes mode, des key = %s",
                    shownKey(mAesKey));
    return newCipherParser(mAesKey, tovi::wire::kAes);
  }
  if (mSm4Key != nullptr) {
    tovi::log::info("ToviTraffic::recv create protocalParser sm4 mode, sm4 key = %s",
                    shownKey(mSm4Key));
    return newCipherParser(mSm4Key, tovi::wire::kSm4);
  }
  tovi::log::info("ToviTraffic::recv create protocalParser normal mode");
  return new ProtocalParser();
}

// In server mode the socket's options are the host's; a shorter time-out that it has set there
// holds.
int ToviTraffic::receiveTimeout(std::uint64_t socket) const {
  if (mSocket == 0) return mTimeout;
  const int own = tovi::platform::receiveTimeout(socket);
  if (own == 0 || mTimeout == 0) return std::max(own, mTimeout);
  return std::min(own, mTimeout);
}

char* ToviTraffic::recv(std::uint64_t socket, short what, int* outLen) {
  return recv(socket, what, outLen, TEMP_SIZE);
}

char* ToviTraffic::recv(std::uint64_t socket, short what, int* outLen, int bufSize) {
  tovi::log::info("ToviTraffic::recv start");
  if (mProtocalParser == nullptr) mProtocalParser = newParser();
  const std::unique_ptr<char[]> buffer(new char[static_cast<std::size_t>(bufSize)]);
  int failures = 0;
  char* package = nullptr;
  while ((package = receiveOnce(socket, what, buffer.get(), bufSize)) == nullptr) {
    if (++failures == MAX_FAIL_COUNT) {
      tovi::log::error("ToviTraffic::recv recv failed count > MAX_FAIL_COUNT");
      return nullptr;
    }
    tovi::platform::pauseFor(kPauseMs);
  }
  *outLen = mProtocalParser->packageLen;
  tovi::log::info("ToviTraffic::recv recv buf end");
  return package;
}

// One attempt: the kept bytes first, unless they were searched already.
char* ToviTraffic::receiveOnce(std::uint64_t socket, short what, char* buffer, int bufSize) {
  if (mProtocalParser->pendingLen > 0 && !mProtocalParser->needMore) {
    tovi::log::info("ToviTraffic::recv start recvProc");
    return mProtocalParser->recvProc(nullptr, 0, what);
  }
  tovi::log::info("ToviTraffic::recv recv start");
  char* package = nullptr;
  const int received = tovi::platform::receiveSome(
      socket, {buffer, static_cast<std::size_t>(bufSize)}, receiveTimeout(socket));
  if (received == -1) {
    tovi::log::info("ToviTraffic::recv recv erron = %d", tovi::platform::lastSocketError());
  } else {
    tovi::log::info("ToviTraffic::recv start recvProc");
    package = mProtocalParser->recvProc(buffer, received, what);
  }
  tovi::log::info("ToviTraffic::recv recv start, recv result = %d", received);
  return package;
}
