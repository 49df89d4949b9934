#include "transfer/transfer.h"

#include <memory>

#include "foundation/log.h"
#include "wire/frame.h"

namespace tovi::transfer {

Transfer::Transfer(ToviTraffic& traffic, const char* method) : mTraffic(traffic), mMethod(method) {
  log::info("%s start", mMethod);
}

Transfer::~Transfer() { mTraffic.closeSocket(mSocket); }

bool Transfer::connect() {
  mSocket = mTraffic.getSocket();
  if (mSocket != 0) return true;
  log::error("%s socket error", mMethod);
  mTraffic.mOutcome = ToviOutcome::NoConnection;
  return false;
}

int Transfer::refuse(const char* why) {
  log::error("%s refused: %s", mMethod, why);
  mTraffic.mOutcome = ToviOutcome::RefusedArgument;
  return ToviTraffic::ARGUMENT_ERROR;
}

}  // namespace tovi::transfer

int ToviTraffic::transferStep(std::uint64_t socket, const tovi::transfer::Step& step, char* data,
                              int len) {
  const bool sent = sendPacket(socket, tovi::wire::wideCode(step.command.request), data, len) >= 0;
  return awaitStep(socket, step, sent);
}

int ToviTraffic::awaitStep(std::uint64_t socket, const tovi::transfer::Step& step, bool sent) {
  const char* method = step.command.method.data();
  int size = 0;
  const std::unique_ptr<char[]> package(
      recv(socket, tovi::wire::wideCode(step.command.reply), &size));
  if (package == nullptr) {
    tovi::log::error("ToviTraffic::%s no reply, result = %d", method, step.noReply);
    mOutcome = sent ? ToviOutcome::NoReply : ToviOutcome::SendFailed;
    return step.noReply;
  }
  // A reply that is nothing but its command byte accepts; in a longer one, a status byte past the
  // end does not.
  const char status = step.statusByte < size ? package.get()[step.statusByte] : '\0';
  if (size > 1 && status != SUCCESS) {
    tovi::log::error("ToviTraffic::%s rejected, status = %d, result = %d", method, status,
                     step.rejected);
    mOutcome = ToviOutcome::Rejected;
    return step.rejected;
  }
  mOutcome = ToviOutcome::Done;
  return SUCCESS;
}
