// SPDX-License-Identifier: MIT
// The exchange patterns: a setting that answers with a status byte, and a query.
#include "foundation/bytes.h"
#include "foundation/log.h"
#include "session/session.h"
#include "wire/command_table.h"

namespace tovi::session {

static_assert(ToviTraffic::TEMP_SIZE == wire::kShortReply);
static_assert(ToviTraffic::BIG_SIZE == wire::kBigReply);
static_assert(ToviTraffic::BIG_STRING_SIZE == wire::kTextReply);
static_assert(ToviTraffic::SCREENSHOT_SIZE == wire::kPictureReply);

int Session::set(short what, short rspWhat, std::string_view payload) {
  Connection connection(*this);
  if (!connection) {
    log::error("ToviTraffic::normalSet socket error");
    return end(ToviOutcome::NoConnection, ToviTraffic::SOCKET_ERROR_CODE);
  }
  const bool sent = send(connection.socket(), what, payload) >= 0;
  if (rspWhat == wire::wideCode(wire::kNoReply)) {
    log::error("ToviTraffic::normalSet don't need wiat rsp");
    if (sent) connection.keep();
    return end(sent ? ToviOutcome::Done : ToviOutcome::SendFailed, ToviTraffic::SUCCESS);
  }
  const std::optional<std::string> package =
      receive(connection.socket(), rspWhat, ToviTraffic::TEMP_SIZE);
  if (!package) {
    log::error("ToviTraffic::normalSet recvBuf is null, result = SEND_NOT_RECV_ERROR");
    return end(sent ? ToviOutcome::NoReply : ToviOutcome::SendFailed,
               ToviTraffic::SEND_NOT_RECV_ERROR);
  }
  connection.keep();
  if (package->size() > 1 && (*package)[1] != ToviTraffic::SUCCESS) {
    log::error("ToviTraffic::normalSet recvBuf result = %c, result = SEND_RECV_ERROR",
               (*package)[1]);
    return end(ToviOutcome::Rejected, ToviTraffic::SEND_RECV_ERROR);
  }
  log::info("ToviTraffic::normalSet success");
  return end(ToviOutcome::Done, ToviTraffic::SUCCESS);
}

// Nothing with the outcome SendFailed or NoReply.
std::optional<std::string> Session::exchange(std::uint64_t socket, short what, short rspWhat,
                                             std::string_view payload, int bufferSize) {
  const int sent = send(socket, what, payload);
  if (sent < 0) {
    log::error("ToviTraffic::getData socket send error code:%d req:%d", sent, what);
    end(ToviOutcome::SendFailed);
    return std::nullopt;
  }
  // Written as an error although it is none: hosts filter their logs for it.
  log::error("ToviTraffic::getData socket send success :%d", what);
  std::optional<std::string> package = receive(socket, rspWhat, bufferSize);
  end(package ? ToviOutcome::Done : ToviOutcome::NoReply);
  return package;
}

std::optional<std::string> Session::ask(short what, short rspWhat, std::string_view payload,
                                        int bufferSize) {
  std::optional<std::string> package;
  {
    Connection connection(*this);
    if (!connection) {
      log::error("ToviTraffic::getData socket error");
      end(ToviOutcome::NoConnection);
      return std::nullopt;
    }
    package = exchange(connection.socket(), what, rspWhat, payload, bufferSize);
    if (package) connection.keep();
  }
  return toldOf(std::move(package));
}

std::optional<std::string> Session::askOn(std::uint64_t socket, short what, short rspWhat,
                                          std::string_view payload, int bufferSize) {
  return toldOf(exchange(socket, what, rspWhat, payload, bufferSize));
}

std::optional<std::string> Session::toldOf(std::optional<std::string> package) const {
  if (package) {
    log::info("ToviTraffic::getData socket recv success. recv size = %d",
              static_cast<int>(package->size()));
  } else if (outcome() == ToviOutcome::NoReply) {
    log::error("ToviTraffic::getData socket recv error");
  }
  return package;
}

}  // namespace tovi::session

using tovi::session::Session;

namespace {

SocketResult* newResult(const std::optional<std::string>& package) {
  return package ? new SocketResult(tovi::newArray(*package), static_cast<int>(package->size()))
                 : nullptr;
}

}  // namespace

// Kept: the interface names it.
int ToviTraffic::normalSet(char what, char rspWhat, char* data, int len) {
  return Session(*this).set(static_cast<signed char>(what), static_cast<signed char>(rspWhat),
                            tovi::viewOf(data, len));
}

// Kept: the interface names it.
SocketResult* ToviTraffic::getData(short what, short rspWhat, char* data, int len) {
  return getData(what, rspWhat, data, len, TEMP_SIZE);
}

// Kept: the interface names it.
SocketResult* ToviTraffic::getData(short what, short rspWhat, char* data, int len, int bufSize) {
  return newResult(Session(*this).ask(what, rspWhat, tovi::viewOf(data, len), bufSize));
}

// Kept: the interface names it.
SocketResult* ToviTraffic::getBigData(short what, short rspWhat, char* data, int len) {
  return getData(what, rspWhat, data, len, BIG_SIZE);
}

// Kept: the interface names it.
SocketResult* ToviTraffic::getData(std::uint64_t socket, short what, short rspWhat, char* data,
                                   int len) {
  return getData(socket, what, rspWhat, data, len, TEMP_SIZE);
}

// Kept: the interface names it.
SocketResult* ToviTraffic::getData(std::uint64_t socket, short what, short rspWhat, char* data,
                                   int len, int bufSize) {
  return newResult(Session(*this).askOn(socket, what, rspWhat, tovi::viewOf(data, len), bufSize));
}
