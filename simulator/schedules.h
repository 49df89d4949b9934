// SPDX-License-Identifier: MIT
// Timetables that outlive the process: the requests that set them, kept to be made again.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "simulator/storage.h"
#include "simulator/wire.h"

namespace tovi::sim {

class Schedules {
 public:
  explicit Schedules(const std::string& folder) : mStorage({folder}) {}

  // Why the folder is of no use; empty when all is well.
  const std::string& error() const { return mStorage.error(); }

  // What set the timetables last.
  std::vector<Message> requests() const;

  // Keeps a request that has set something, or forgets what it has removed; false when the folder
  // cannot be written.
  bool keep(std::string_view method, View payload);

 private:
  Storage mStorage;
};

}  // namespace tovi::sim
