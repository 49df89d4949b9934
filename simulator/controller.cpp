#include "simulator/controller.h"

#include <array>
#include <utility>

#include "simulator/handlers.h"

namespace tovi::sim {
namespace {

struct Found {
  const Row* row = nullptr;      // the command itself
  const Row* sibling = nullptr;  // another command with the same code
};

Found find(const Message& request) {
  Found found;
  for (const auto rows : {screenRows(), identityRows()}) {
    for (const Row& row : rows) {
      if (row.command.request != request.code) continue;
      const bool meant =
          !row.selector || (!request.payload.empty() && request.payload.front() == *row.selector);
      if (meant) return {&row, nullptr};
      if (found.sibling == nullptr) found.sibling = &row;
    }
  }
  return found;
}

const device::Command* commandOf(std::uint16_t code) {
  for (const device::Command& command : device::kCommands) {
    if (command.request == code) return &command;
  }
  return nullptr;
}

std::string codeText(std::uint16_t code) {
  const std::uint8_t bytes[] = {static_cast<std::uint8_t>(code >> 8),
                                static_cast<std::uint8_t>(code & 0xFF)};
  return "0x" + (code > 0xFF ? hex({bytes, 1}) : "") + hex({bytes + 1, 1});
}

Answer notKnown(const Message& request) {
  const device::Command* command = commandOf(request.code);
  Answer answer;
  answer.method = command != nullptr ? command->method : "unknown command";
  answer.asked = codeText(request.code) + ", " + std::to_string(request.payload.size()) + " bytes";
  answer.told = command != nullptr ? "not simulated, no reply" : "no reply";
  return answer;
}

}  // namespace

Answer Request::accept(std::string asked) const {
  return {std::string(command.method), std::move(asked), "accepted", {{command.reply, {1}}}};
}

Answer Request::refuse(std::string asked) const {
  return {std::string(command.method), std::move(asked), "refused", {{command.reply, {0}}}};
}

Answer Request::tell(std::string told, Bytes reply) const {
  return {std::string(command.method), {}, std::move(told), {{command.reply, std::move(reply)}}};
}

Answer Request::keepQuiet(std::string asked) const {
  return {std::string(command.method), std::move(asked), "no reply", {}};
}

Controller::Controller(State initial) : mState(std::move(initial)) {}

Answer Controller::handle(const Message& request) {
  const std::lock_guard lock(mMutex);
  const Found found = find(request);
  if (found.row != nullptr) {
    return found.row->handler({found.row->command, request.payload, mState});
  }
  if (found.sibling != nullptr) {
    return Request{found.sibling->command, request.payload, mState}.refuse("in no form we know");
  }
  return notKnown(request);
}

Answer Controller::refuse(const Message& request) const {
  const Found found = find(request);
  const Row* row = found.row != nullptr ? found.row : found.sibling;
  if (row == nullptr) return notKnown(request);
  State untouched;
  const Request refused{row->command, request.payload, untouched};
  return row->command.reply == device::kNoReply ? refused.keepQuiet() : refused.refuse();
}

State Controller::state() const {
  const std::lock_guard lock(mMutex);
  return mState;
}

void Controller::change(const std::function<void(State&)>& edit) {
  const std::lock_guard lock(mMutex);
  edit(mState);
}

}  // namespace tovi::sim
