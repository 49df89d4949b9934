// SPDX-License-Identifier: MIT
// The controller itself: state, files and the answers to commands. Knows no sockets, no frames and
// no enciphering.
#pragma once

#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "simulator/schedules.h"
#include "simulator/session.h"
#include "simulator/state.h"
#include "simulator/storage.h"
#include "simulator/wire.h"

namespace tovi::sim {

// What came of a command: the replies, and the same in words.
struct Answer {
  std::string method;  // "setBrightness"
  std::string asked;   // "level 80 (manual)"; may be empty
  std::string told;    // "accepted"
  std::vector<Message> replies;
};

// Safe to use from several threads; a session is for one.
class Controller {
 public:
  // With a folder, its timetables are those of the last run.
  explicit Controller(State initial = {}, Storage::Options files = {});

  // Why the folder is of no use; empty when all is well.
  const std::string& error() const;

  Answer handle(const Message& request, Session& session);

  // The request of a connection that has no other.
  Answer handle(const Message& request);

  // The answer of a controller that says no; nothing changes.
  Answer refuse(const Message& request) const;

  // After the last chunk of a file the controller speaks of its own accord: whether it keeps the
  // file. Nothing when no file awaits that.
  bool hasWholeFile(const Session& session) const;
  Answer confirmFile(Session& session);
  Answer refuseFile(Session& session);

  State state() const;
  Key key() const;
  Storage& files() { return mFiles; }

  // Changes what the device measures or was set to by other means.
  void change(const std::function<void(State&)>& edit);

 private:
  mutable std::mutex mMutex;
  State mState;
  Storage mFiles;
  std::unique_ptr<Schedules> mSchedules;  // null: not kept
};

}  // namespace tovi::sim
