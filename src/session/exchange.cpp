// The exchange patterns: a setting that answers with a status byte, and a query.
#include <tovisdk/tovi_traffic.h>

#include <memory>

#include "foundation/log.h"
#include "wire/command_table.h"

int ToviTraffic::normalSet(char what, char rspWhat, char* data, int len) {
  const std::uint64_t socket = getSocket();
  if (socket == 0) {
    tovi::log::error("ToviTraffic::normalSet socket error");
    mOutcome = ToviOutcome::NoConnection;
    return SOCKET_ERROR_CODE;
  }
  const bool sent =
      sendPacket(socket, tovi::wire::wideCode(static_cast<unsigned char>(what)), data, len) >= 0;
  if (rspWhat == static_cast<char>(tovi::wire::kNoReply)) {
    tovi::log::error("ToviTraffic::normalSet don't need wiat rsp");
    closeSocket(socket);
    mOutcome = sent ? ToviOutcome::Done : ToviOutcome::SendFailed;
    return SUCCESS;
  }
  int size = 0;
  const std::unique_ptr<char[]> package(
      recv(socket, tovi::wire::wideCode(static_cast<unsigned char>(rspWhat)), &size));
  int result = SUCCESS;
  if (package == nullptr) {
    tovi::log::error("ToviTraffic::normalSet recvBuf is null, result = SEND_NOT_RECV_ERROR");
    mOutcome = sent ? ToviOutcome::NoReply : ToviOutcome::SendFailed;
    result = SEND_NOT_RECV_ERROR;
  } else if (size > 1 && package[1] != SUCCESS) {
    tovi::log::error("ToviTraffic::normalSet recvBuf result = %c, result = SEND_RECV_ERROR",
                     package[1]);
    mOutcome = ToviOutcome::Rejected;
    result = SEND_RECV_ERROR;
  } else {
    tovi::log::info("ToviTraffic::normalSet success");
    mOutcome = ToviOutcome::Done;
  }
  closeSocket(socket);
  return result;
}

SocketResult* ToviTraffic::getData(short what, short rspWhat, char* data, int len) {
  return getData(what, rspWhat, data, len, TEMP_SIZE);
}

SocketResult* ToviTraffic::getBigData(short what, short rspWhat, char* data, int len) {
  return getData(what, rspWhat, data, len, BIG_SIZE);
}

SocketResult* ToviTraffic::getData(short what, short rspWhat, char* data, int len, int bufSize) {
  const std::uint64_t socket = getSocket();
  if (socket == 0) {
    tovi::log::error("ToviTraffic::getData socket error");
    mOutcome = ToviOutcome::NoConnection;
    return nullptr;
  }
  int size = 0;
  char* package = sendAndReceive(socket, what, rspWhat, data, len, bufSize, &size);
  closeSocket(socket);
  return newResult(package, size);
}

SocketResult* ToviTraffic::getData(std::uint64_t socket, short what, short rspWhat, char* data,
                                   int len) {
  return getData(socket, what, rspWhat, data, len, TEMP_SIZE);
}

SocketResult* ToviTraffic::getData(std::uint64_t socket, short what, short rspWhat, char* data,
                                   int len, int bufSize) {
  int size = 0;
  char* package = sendAndReceive(socket, what, rspWhat, data, len, bufSize, &size);
  return newResult(package, size);
}

// Null with the outcome SendFailed or NoReply.
char* ToviTraffic::sendAndReceive(std::uint64_t socket, short what, short rspWhat, char* data,
                                  int len, int bufSize, int* outLen) {
  const int sent = sendPacket(socket, what, data, len);
  if (sent < 0) {
    tovi::log::error("ToviTraffic::getData socket send error code:%d req:%d", sent, what);
    mOutcome = ToviOutcome::SendFailed;
    return nullptr;
  }
  // Written as an error although it is none: hosts filter their logs for it.
  tovi::log::error("ToviTraffic::getData socket send success :%d", what);
  char* package = recv(socket, rspWhat, outLen, bufSize);
  mOutcome = package == nullptr ? ToviOutcome::NoReply : ToviOutcome::Done;
  return package;
}

SocketResult* ToviTraffic::newResult(char* package, int len) {
  if (package == nullptr) {
    if (mOutcome == ToviOutcome::NoReply)
      tovi::log::error("ToviTraffic::getData socket recv error");
    return nullptr;
  }
  tovi::log::info("ToviTraffic::getData socket recv success. recv size = %d", len);
  return new SocketResult(package, len);
}
