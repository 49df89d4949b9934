#include "session/operation.h"

namespace tovi::session {

using wire::wideCode;

Operation::Operation(ToviTraffic& traffic, wire::Row row)
    : Call(traffic, row.command.method.data()), mCommand(row.command) {}

int Operation::set(const std::string& payload) {
  if (!fits(payload)) return ToviTraffic::ARGUMENT_ERROR;
  return session().set(wideCode(mCommand.request), wideCode(mCommand.reply), payload);
}

int Operation::setAfter(wire::Row before, const std::string& first, const std::string& payload) {
  if (!fits(payload)) return ToviTraffic::ARGUMENT_ERROR;
  const int result =
      session().set(wideCode(before.command.request), wideCode(before.command.reply), first);
  return result == ToviTraffic::SUCCESS ? set(payload) : result;
}

int Operation::setText(const std::string& text) {
  if (text.size() < mCommand.text.least) return refuse("the text is empty");
  return text.size() > mCommand.text.most ? refuse("the text is too long") : set(text);
}

Reply Operation::ask(Length usable, const std::string& payload) {
  if (!fits(payload)) return Reply();
  Reply reply(session().ask(wideCode(mCommand.request), wideCode(mCommand.reply), payload,
                            mCommand.buffer));
  if (!reply || (reply.size() >= usable.least && reply.size() <= usable.most)) return reply;
  end(ToviOutcome::BadReply);
  return Reply();
}

int Operation::askFlag(const std::string& payload) {
  const Reply reply = ask(atLeast(0), payload);
  if (!reply) {
    return outcome() == ToviOutcome::RefusedArgument ? ToviTraffic::ARGUMENT_ERROR : -1;
  }
  return reply.isOne(2) ? 1 : end(ToviOutcome::Rejected, 0);
}

std::string Operation::askText(const std::string& payload) {
  const int status = mCommand.request > 0xFF ? 2 : 1;
  const Reply reply = ask(atLeast(status + 2), payload);
  if (!reply) return "";
  if (reply.isOne(status)) return reply.text(status + 1);
  end(ToviOutcome::Rejected);
  return "";
}

int Operation::askByte(int n, const std::string& payload) {
  const Reply reply = ask(atLeast(n + 1), payload);
  return reply ? reply.signedByte(n) : -1;
}

bool Operation::fits(const std::string& payload) {
  if (payload.size() <= wire::kMaxPayload) return true;
  refuse("it does not fit a frame");
  return false;
}

}  // namespace tovi::session
