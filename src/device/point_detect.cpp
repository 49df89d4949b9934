// Broken pixels.
#include <tovisdk/codec.h>
#include <tovisdk/tovi_traffic.h>

#include <algorithm>
#include <iostream>
#include <memory>

#include "device/operation.h"
#include "foundation/log.h"
#include "wire/frame.h"

using tovi::device::atLeast;
using tovi::device::Operation;
using tovi::device::Reply;
using tovi::wire::Command;
using tovi::wire::command;
using tovi::wire::wideCode;

namespace {

// More parts than any screen has; an announced number beyond it is not believed.
constexpr int kMaxParts = 4096;

int announcedParts(SocketResult& first) {
  if (first.getLen() < 4) return 0;
  return std::clamp<int>(bytesToShort(first.getOrgChar(), 2), 0, kMaxParts);
}

SocketResult* newJoined(const std::string& bytes) {
  std::unique_ptr<char[]> joined(new char[bytes.size() + 1]);
  bytes.copy(joined.get(), bytes.size());
  return new SocketResult(joined.release(), static_cast<int>(bytes.size()));
}

}  // namespace

ScreenPointDetect ToviTraffic::startScreenPointDetect() {
  const Reply reply = Operation(*this, command("startScreenPointDetect")).ask(atLeast(6));
  ScreenPointDetect detect;
  if (!reply) return detect;
  if (reply.isOne(1)) {
    detect = {1, reply.integer(2)};
  } else {
    mOutcome = ToviOutcome::Rejected;
  }
  return detect;
}

SocketResult* ToviTraffic::getDetectErrorPointData(std::uint64_t socket, char what, char rspWhat,
                                                   char partWhat, char* data, int len,
                                                   int bufSize) {
  if (socket == 0) {
    std::cout << "socket == NULL" << std::endl;
    mOutcome = ToviOutcome::NoConnection;
    return nullptr;
  }
  if (sendPacket(socket, wideCode(static_cast<unsigned char>(what)), data, len) < 0) {
    closeSocket(socket);
    std::cout << "send SOCKET_ERROR" << std::endl;
    mOutcome = ToviOutcome::SendFailed;
    return nullptr;
  }
  int size = 0;
  char* announced = recv(socket, wideCode(static_cast<unsigned char>(rspWhat)), &size, bufSize);
  if (announced == nullptr) {
    mOutcome = ToviOutcome::NoReply;
    return nullptr;
  }
  SocketResult first(announced, size);
  std::string joined;
  mOutcome = ToviOutcome::Done;
  for (int left = announcedParts(first); left > 0; --left) {
    const std::unique_ptr<char[]> part(
        recv(socket, wideCode(static_cast<unsigned char>(partWhat)), &size, bufSize));
    if (part == nullptr) {
      mOutcome = ToviOutcome::NoReply;
      break;
    }
    joined.append(part.get() + 1, static_cast<std::size_t>(size - 1));
  }
  return newJoined(joined);
}

std::string ToviTraffic::getDetectErrorPointInfo() {
  constexpr const Command& detect = command("startScreenPointDetect");
  constexpr const Command& parts = command("getDetectErrorPointData");
  tovi::log::info("getDetectErrorPointInfo start");
  const std::uint64_t socket = getSocket();
  if (socket == 0) {
    mOutcome = ToviOutcome::NoConnection;
    return "";
  }
  std::unique_ptr<SocketResult> result(
      getData(socket, wideCode(detect.request), wideCode(detect.reply), nullptr, 0));
  if (result != nullptr) {
    result.reset(getDetectErrorPointData(socket, static_cast<char>(parts.request),
                                         static_cast<char>(parts.reply),
                                         static_cast<char>(parts.reply), nullptr, 0));
    if (result == nullptr && mOutcome == ToviOutcome::SendFailed) return "";  // closed already
  }
  closeSocket(socket);
  return result == nullptr
             ? ""
             : std::string(result->getOrgChar(), static_cast<std::size_t>(result->getLen()));
}
