// SPDX-License-Identifier: MIT
#include "simulator/schedules.h"

#include "simulator/handlers.h"

namespace tovi::sim {
namespace {

constexpr std::string_view kSet = "set", kRemove = "remove";
constexpr std::size_t kLongest = 65535;

}  // namespace

std::vector<Message> Schedules::requests() const {
  std::vector<Message> requests;
  for (const auto rows : {brightnessRows(), timetableRows()}) {
    for (const Row& row : rows) {
      const std::string name(row.command.method);
      if (!name.starts_with(kSet)) continue;
      if (auto payload = mStorage.read(name, kLongest)) {
        requests.push_back({row.command.request, std::move(*payload)});
      }
    }
  }
  return requests;
}

bool Schedules::keep(std::string_view method, View payload) {
  if (method.starts_with(kRemove)) {
    const std::string name = std::string(kSet).append(method.substr(kRemove.size()));
    return !mStorage.has(name) || mStorage.remove(name);
  }
  const auto file = mStorage.begin(std::string(method));
  return file != nullptr && file->append(payload) && file->keep();
}

}  // namespace tovi::sim
