// SPDX-License-Identifier: MIT
#include "transfer/transfer.h"

#include "foundation/log.h"

namespace tovi::transfer {

Transfer::~Transfer() {
  if (mConnection && outcome() == ToviOutcome::Done) mConnection->keep();
}

bool Transfer::connect() {
  mConnection.emplace(session());
  if (*mConnection) return true;
  log::error("%s socket error", method());
  return end(ToviOutcome::NoConnection, false);
}

int sendStep(session::Session session, std::uint64_t socket, const Step& step,
             std::string_view payload) {
  const bool sent = session.send(socket, wire::wideCode(step.row.command.request), payload) >= 0;
  return awaitStep(session, socket, step, sent);
}

int awaitStep(session::Session session, std::uint64_t socket, const Step& step, bool sent) {
  const wire::Command& command = step.row.command;
  const std::optional<std::string> reply =
      session.receive(socket, wire::wideCode(command.reply), command.buffer);
  if (!reply) {
    log::error("ToviTraffic::%s no reply, result = %d", command.method.data(), step.noReply);
    return session.end(sent ? ToviOutcome::NoReply : ToviOutcome::SendFailed, step.noReply);
  }
  // A reply that is nothing but its command byte accepts; in a longer one, a status byte past the
  // end does not.
  const char status = step.statusByte < reply->size() ? (*reply)[step.statusByte] : '\0';
  if (reply->size() > 1 && status != ToviTraffic::SUCCESS) {
    log::error("ToviTraffic::%s rejected, status = %d, result = %d", command.method.data(), status,
               step.rejected);
    return session.end(ToviOutcome::Rejected, step.rejected);
  }
  return session.end(ToviOutcome::Done, ToviTraffic::SUCCESS);
}

}  // namespace tovi::transfer
