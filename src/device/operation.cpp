#include "device/operation.h"

#include "foundation/frame.h"
#include "foundation/log.h"

namespace tovi::device {

std::string bytes(std::initializer_list<int> values) {
  std::string payload;
  for (const int value : values) payload += static_cast<char>(value);
  return payload;
}

Operation::Operation(ToviTraffic& traffic, const Command& command)
    : mTraffic(traffic), mCommand(command) {
  log::info("%s start", mCommand.method.data());
}

int Operation::set(std::string payload) {
  return mTraffic.normalSet(static_cast<char>(mCommand.request), static_cast<char>(mCommand.reply),
                            payload.data(), static_cast<int>(payload.size()));
}

Reply Operation::ask(Length usable, std::string payload) {
  const int buffer =
      mCommand.exchange == Exchange::GetBig ? ToviTraffic::BIG_SIZE : ToviTraffic::TEMP_SIZE;
  Reply reply(mTraffic.getData(wideCode(mCommand.request), wideCode(mCommand.reply), payload.data(),
                               static_cast<int>(payload.size()), buffer));
  if (!reply || (reply.size() >= usable.least && reply.size() <= usable.most)) return reply;
  mTraffic.mOutcome = ToviOutcome::BadReply;
  return Reply();
}

int Operation::refuse(const char* why) {
  log::error("%s refused: %s", mCommand.method.data(), why);
  mTraffic.mOutcome = ToviOutcome::RefusedArgument;
  return ToviTraffic::ARGUMENT_ERROR;
}

}  // namespace tovi::device
