// SPDX-License-Identifier: MIT
#include "simulator/controller.h"

#include <utility>

#include "simulator/files.h"
#include "simulator/handlers.h"

namespace tovi::sim {
namespace {

constexpr std::size_t kBytesShown = 16;

struct Found {
  const Row* row = nullptr;      // the command itself
  const Row* sibling = nullptr;  // another command with the same code
};

using Rows = std::span<const Row> (*)();
constexpr Rows kThemes[] = {
    powerRows,      brightnessRows, timetableRows, clockRows,    displayRows,
    nowPlayingRows, identityRows,   networkRows,   wirelessRows, maintenanceRows,
    secureModeRows, fileRows,       playlistRows,  updateRows,   screenshotRows,
};

Found find(const Message& request) {
  Found found;
  for (const Rows rows : kThemes) {
    for (const Row& row : rows()) {
      if (row.command.request != request.code) continue;
      if (row.meant == nullptr || row.meant(request.payload)) return {&row, nullptr};
      if (found.sibling == nullptr) found.sibling = &row;
    }
  }
  return found;
}

const wire::Command* commandOf(std::uint16_t code) {
  for (const wire::Command& command : wire::kCommands) {
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
  const wire::Command* command = commandOf(request.code);
  Answer answer;
  answer.method = command != nullptr ? command->method : "unknown command";
  answer.asked = codeText(request.code) + ", " + std::to_string(request.payload.size()) + " bytes";
  answer.told = command != nullptr ? "not simulated, no reply" : "no reply";
  return answer;
}

}  // namespace

Answer Request::accept(std::string asked) const {
  return {
      std::string(row.command.method), std::move(asked), "accepted", {{row.command.reply, {1}}}};
}

Answer Request::refuse() const {
  return refuse("payload " + (payload.empty() ? "none" : hex(payload, kBytesShown)));
}

Answer Request::refuse(std::string why) const { return refusalOf(row, payload, std::move(why)); }

Answer Request::tell(std::string told, Bytes reply) const {
  return {std::string(row.command.method),
          {},
          std::move(told),
          {{row.command.reply, std::move(reply)}}};
}

Answer Request::keepQuiet(std::string asked) const {
  return {std::string(row.command.method), std::move(asked), "no reply", {}};
}

Answer refusalOf(const Row& row, View payload, std::string asked) {
  Answer answer{std::string(row.command.method), std::move(asked), "refused", {}};
  if (row.command.reply == wire::kNoReply) {
    answer.told = "refused, no reply";
    return answer;
  }
  Bytes status = row.refusal != nullptr ? row.refusal(payload) : Bytes{0};
  answer.replies.push_back({row.command.reply, std::move(status)});
  return answer;
}

Controller::Controller(State initial, Storage::Options files)
    : mState(std::move(initial)), mFiles(files) {
  if (files.folder.empty() || !mFiles.error().empty()) return;
  auto schedules = std::make_unique<Schedules>(files.folder + "/schedules");
  for (const Message& request : schedules->requests()) handle(request);
  mSchedules = std::move(schedules);
}

const std::string& Controller::error() const {
  return mFiles.error().empty() && mSchedules != nullptr ? mSchedules->error() : mFiles.error();
}

Answer Controller::handle(const Message& request, Session& session) {
  const std::lock_guard lock(mMutex);
  const Found found = find(request);
  const Row* row = found.row != nullptr ? found.row : found.sibling;
  if (row == nullptr) return notKnown(request);
  const Request asked{*row, request.payload, mState, mFiles, session};
  const std::size_t size = request.payload.size();
  const bool fits = size >= row->size.least && size <= row->size.most;
  if (found.row == nullptr || !fits) return asked.refuse();
  const Timetables before = mState.timetables;
  Answer answer = row->handler(asked);
  if (mSchedules == nullptr || mState.timetables == before) return answer;
  if (mSchedules->keep(row->command.method, request.payload)) return answer;
  mState.timetables = before;
  return asked.refuse("cannot be kept");
}

Answer Controller::handle(const Message& request) {
  Session session;
  return handle(request, session);
}

Answer Controller::refuse(const Message& request) const {
  const Found found = find(request);
  const Row* row = found.row != nullptr ? found.row : found.sibling;
  return row != nullptr ? refusalOf(*row, request.payload, {}) : notKnown(request);
}

bool Controller::hasWholeFile(const Session& session) const {
  return session.upload && session.upload->whole;
}

Answer Controller::confirmFile(Session& session) { return confirmUpload(*session.upload, session); }

Answer Controller::refuseFile(Session& session) { return refuseUpload(*session.upload); }

Key Controller::key() const {
  const std::lock_guard lock(mMutex);
  return mState.security.key;
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
