#include "device/operation.h"

#include "foundation/log.h"
#include "wire/frame.h"

namespace tovi::device {
std::string bytes(std::initializer_list<int> values) {
  std::string payload;
  for (const int value : values) payload += static_cast<char>(value);
  return payload;
}

Operation::Operation(ToviTraffic& traffic, const wire::Command& command)
    : mTraffic(traffic), mCommand(command) {
  log::info("%s start", mCommand.method.data());
}

int Operation::set(std::string payload) { return step(mCommand, std::move(payload)); }

int Operation::step(const wire::Command& command, std::string payload) {
  if (!fits(payload)) return ToviTraffic::ARGUMENT_ERROR;
  return mTraffic.normalSet(static_cast<char>(command.request), static_cast<char>(command.reply),
                            payload.data(), static_cast<int>(payload.size()));
}

int Operation::setText(const std::string& text, std::size_t most) {
  return text.size() > most ? refuse("the text is too long") : set(text);
}

Reply Operation::ask(Length usable, std::string payload) {
  if (!fits(payload)) return Reply();
  Reply reply(mTraffic.getData(wire::wideCode(mCommand.request), wire::wideCode(mCommand.reply),
                               payload.data(), static_cast<int>(payload.size()), mCommand.buffer));
  if (!reply || (reply.size() >= usable.least && reply.size() <= usable.most)) return reply;
  mTraffic.mOutcome = ToviOutcome::BadReply;
  return Reply();
}

int Operation::askFlag(std::string payload) {
  const Reply reply = ask(atLeast(0), std::move(payload));
  if (!reply)
    return mTraffic.mOutcome == ToviOutcome::RefusedArgument ? ToviTraffic::ARGUMENT_ERROR : -1;
  if (reply.isOne(2)) return 1;
  mTraffic.mOutcome = ToviOutcome::Rejected;
  return 0;
}

std::string Operation::askText(std::string payload) {
  const int status = mCommand.request > 0xFF ? 2 : 1;
  const Reply reply = ask(atLeast(status + 2), std::move(payload));
  if (!reply) return "";
  if (reply.isOne(status)) return reply.text(status + 1);
  mTraffic.mOutcome = ToviOutcome::Rejected;
  return "";
}

int Operation::askByte(int n, int otherwise, std::string payload) {
  const Reply reply = ask(atLeast(n + 1), std::move(payload));
  return reply ? reply.signedByte(n) : otherwise;
}

int Operation::refuse(const char* why) {
  log::error("%s refused: %s", mCommand.method.data(), why);
  mTraffic.mOutcome = ToviOutcome::RefusedArgument;
  return ToviTraffic::ARGUMENT_ERROR;
}

bool Operation::fits(const std::string& payload) {
  if (payload.size() <= wire::kMaxPayload) return true;
  refuse("it does not fit a frame");
  return false;
}

}  // namespace tovi::device
