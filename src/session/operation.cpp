// SPDX-License-Identifier: MIT
#include "session/operation.h"

namespace tovi::session {

using wire::wideCode;

Operation::Operation(ToviTraffic& traffic, wire::Row row)
    : Call(traffic, row.command.method.data()), mCommand(row.command) {}

int Operation::sendSetting(std::string_view payload) {
  if (!fits(payload)) return ToviTraffic::ARGUMENT_ERROR;
  return session().set(wideCode(mCommand.request), wideCode(mCommand.reply), payload);
}

int Operation::sendSettings(wire::Row before, std::string_view first, std::string_view payload) {
  if (!fits(payload)) return ToviTraffic::ARGUMENT_ERROR;
  const int result =
      session().set(wideCode(before.command.request), wideCode(before.command.reply), first);
  return result == ToviTraffic::SUCCESS ? sendSetting(payload) : result;
}

int Operation::setText(const std::string& text) {
  if (text.size() < mCommand.text.least) return refuse("the text is empty");
  return text.size() > mCommand.text.most ? refuse("the text is too long") : set(text);
}

int Operation::sendConfirmed(std::string_view payload) {
  const Reply reply = sendQuery(atLeast(0), payload);
  if (!reply) {
    return outcome() == ToviOutcome::RefusedArgument ? ToviTraffic::ARGUMENT_ERROR : -1;
  }
  return reply.isOne(2) ? 1 : end(ToviOutcome::Rejected, 0);
}

int Operation::askFlag() {
  return ask(atLeast(0), -1, [this](const Reply& reply) {
    if (reply.size() < 3) return end(ToviOutcome::BadReply, 0);
    return reply.isOne(2) ? 1 : 0;
  });
}

Reply Operation::sendQuery(Length usable, std::string_view payload) {
  if (!fits(payload)) return Reply();
  Reply reply(session().ask(wideCode(mCommand.request), wideCode(mCommand.reply), payload,
                            mCommand.buffer));
  if (!reply || (reply.size() >= usable.least && reply.size() <= usable.most)) return reply;
  end(ToviOutcome::BadReply);
  return Reply();
}

std::string Operation::sendTextQuery(std::string_view payload) {
  const int status = mCommand.request > 0xFF ? 2 : 1;
  const Reply reply = sendQuery(atLeast(status + 1), payload);
  if (!reply) return {};
  if (!reply.isOne(status)) return end(ToviOutcome::Rejected, std::string());
  if (reply.size() < status + 2) return end(ToviOutcome::BadReply, std::string());
  return reply.text(status + 1);
}

bool Operation::fits(std::string_view payload) {
  if (payload.size() <= session().mostPayload(wideCode(mCommand.request))) return true;
  refuse("it does not fit a frame");
  return false;
}

}  // namespace tovi::session
