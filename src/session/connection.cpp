// SPDX-License-Identifier: MIT
#include <tovisdk/tovi_traffic.h>

#include <algorithm>
#include <cstring>
#include <span>
#include <string_view>
#include <utility>

#include "foundation/log.h"
#include "platform/sockets.h"
#include "session/session.h"
#include "wire/packet_receiver.h"

namespace platform = tovi::platform;

namespace {

constexpr int kDefaultTimeout = 20000;

// One that does not fit is kept as the empty text, which no connection attempt accepts.
void keepAddress(const char* ip, std::span<char> address) {
  const std::string_view text(ip, ip == nullptr ? 0 : ::strnlen(ip, address.size()));
  if (ip == nullptr || text.size() == address.size()) {
    tovi::log::error("ToviTraffic::ToviTraffic address refused");
  } else {
    text.copy(address.data(), text.size());
  }
}

// A connected socket, or 0.
std::uint64_t connectTo(const char* ip, unsigned short port, int timeout, platform::Stop stop) {
  const platform::Socket socket = platform::openSocket();
  if (socket == platform::kInvalidSocket) {
    tovi::log::error("ToviTraffic::getSocket create socket error");
    return 0;
  }
  platform::setTimeouts(socket, timeout);
  if (!platform::connectSocket(socket, ip, port, timeout, stop)) {
    tovi::log::error("ToviTraffic::getSocket connect socket error");
    platform::closeSocket(socket);
    return 0;
  }
  tovi::log::info("ToviTraffic::getSocket return toviSocket");
  return socket;
}

}  // namespace

ToviTraffic::ToviTraffic(const char* ip, unsigned short port)
    : mAddress{},
      mIp(mAddress),
      mPort(port),
      mTimeout(kDefaultTimeout),
      mSocket(0),
      mProtocalParser(nullptr),
      mDesKey(nullptr),
      mAesKey(nullptr),
      mSm4Key(nullptr),
      mOutcome(ToviOutcome::Done),
      mWaiting(ToviWaiting::ThreeReads),
      mKeepsConnection(false),
      mCancelled(false),
      mKeptSocket(0),
      mExchangeEnds(0) {
  tovi::log::info("ToviTraffic::ToviTraffic init client mode start");
  keepAddress(ip, mAddress);
  tovi::log::info("ToviTraffic::ToviTraffic init client mode end");
}

ToviTraffic::ToviTraffic(std::uint64_t socket)
    : mAddress{},
      mIp(nullptr),
      mPort(0),
      mTimeout(kDefaultTimeout),
      mSocket(socket),
      mProtocalParser(nullptr),
      mDesKey(nullptr),
      mAesKey(nullptr),
      mSm4Key(nullptr),
      mOutcome(ToviOutcome::Done),
      mWaiting(ToviWaiting::ThreeReads),
      mKeepsConnection(false),
      mCancelled(false),
      mKeptSocket(0),
      mExchangeEnds(0) {
  tovi::log::info("ToviTraffic::ToviTraffic init server mode start");
  // The closing line repeats the opening one; readers of these logs know it so.
  tovi::log::info("ToviTraffic::ToviTraffic init server mode start");
}

ToviTraffic::~ToviTraffic() {
  tovi::log::info("ToviTraffic::~ToviTraffic start");
  closeKept();
  if (mProtocalParser != nullptr) {
    tovi::log::info("ToviTraffic::~ToviTraffic release mProtocalParser start");
    delete mProtocalParser;
    mProtocalParser = nullptr;
    tovi::log::info("ToviTraffic::~ToviTraffic release mProtocalParser end");
  }
  for (char* text : {mDesKey, mAesKey, mSm4Key}) delete[] text;
  tovi::log::info("ToviTraffic::~ToviTraffic end");
}

void ToviTraffic::setTimeout(int ms) {
  tovi::log::info("setTimeout start");
  mTimeout = std::max(ms, 0);
}

void ToviTraffic::setSocket(std::uint64_t socket) {
  closeKept();
  mSocket = socket;
}

void ToviTraffic::setKeepConnection(bool keep) {
  tovi::log::info("setKeepConnection start");
  mKeepsConnection = keep;
  if (!keep) closeKept();
}

ToviOutcome ToviTraffic::lastOutcome() const { return mOutcome; }

void ToviTraffic::discardKeptBytes() {
  tovi::log::info("discardKeptBytes start");
  if (mProtocalParser != nullptr) tovi::wire::Receiver(*mProtocalParser).forget();
}

std::uint64_t ToviTraffic::getSocket() {
  if (mSocket != 0) {
    if (mSocket == platform::kInvalidSocket) {
      tovi::log::error("ToviTraffic::getSocket mSocket is INVALID_SOCKET, return null");
      return 0;
    }
    tovi::log::info("ToviTraffic::getSocket return mSocket");
    return mSocket;
  }
  mExchangeEnds = 0;
  if (mKeptSocket != 0) {
    if (platform::isQuiet(mKeptSocket)) {
      tovi::log::info("ToviTraffic::getSocket return kept toviSocket");
      return std::exchange(mKeptSocket, 0);
    }
    tovi::log::info("ToviTraffic::getSocket kept toviSocket is of no use any more");
    closeKept();
  }
  switch (platform::startUpSockets()) {
    case platform::StartUp::Failed:
      tovi::log::error("ToviTraffic::getSocket WSAStartup error");
      return 0;
    case platform::StartUp::WrongVersion:
      tovi::log::error("ToviTraffic::getSocket WSA version error");
      return 0;
    case platform::StartUp::Ready:
      break;
  }
  tovi::session::Session session(*this);
  const std::uint64_t socket = connectTo(mIp, mPort, *session.waitLeft(mTimeout), session.stop());
  if (socket == 0) platform::cleanUpSockets();
  return socket;
}

void ToviTraffic::closeSocket(std::uint64_t socket) {
  if (mSocket != 0 || socket == 0) return;
  tovi::log::info("ToviTraffic::closeSocket close toviSocket");
  platform::closeSocket(socket);
  platform::cleanUpSockets();
}

void ToviTraffic::closeKept() { closeSocket(std::exchange(mKeptSocket, 0)); }

namespace tovi::session {

void Session::keepSocket(std::uint64_t socket) {
  if (mTraffic.mSocket != 0 || !mTraffic.mKeepsConnection) return closeSocket(socket);
  log::info("ToviTraffic::closeSocket keep toviSocket");
  mTraffic.mKeptSocket = socket;
}

}  // namespace tovi::session
