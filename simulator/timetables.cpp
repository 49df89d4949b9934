// SPDX-License-Identifier: MIT
// Timetables of power, playing and brightness, advance timing.
//
//   list  = number of entries, entries
//   entry = start, end, what is particular to the list
//   time  = day, month, year (2 bytes, low first), second, minute, hour
#include "simulator/shapes.h"

namespace tovi::sim {
namespace {

using wire::command;

constexpr std::size_t kTimeSize = 7;
constexpr std::size_t kPowerEntry = 14;
constexpr std::size_t kBrightnessEntry = 15;
constexpr std::size_t kPlayEntry = 16;
constexpr std::size_t kMaxAdvance = 4096;

// A host that sends months from 0 and years from 1900 is caught here.
bool isTime(View time) {
  const unsigned year = lowFirst(time.subspan(2));
  return time[0] >= 1 && time[0] <= 31 && time[1] >= 1 && time[1] <= 12 && year >= 1970 &&
         year <= 9999 && time[4] <= 59 && time[5] <= 59 && time[6] <= 23;
}

bool isList(View list, std::size_t entrySize) {
  if (list.size() != 1 + list[0] * entrySize) return false;
  for (View left = list.subspan(1); !left.empty(); left = left.subspan(entrySize)) {
    if (!isTime(left) || !isTime(left.subspan(kTimeSize))) return false;
  }
  return true;
}

std::string entriesText(View list) {
  return std::to_string(list[0]) + (list[0] == 1 ? " entry" : " entries");
}

Answer setList(const Request& request, Bytes& list, std::size_t entrySize) {
  if (!isList(request.payload, entrySize)) return request.refuse();
  list.assign(request.payload.begin(), request.payload.end());
  return request.accept(entriesText(list));
}

Answer tellList(const Request& request, const Bytes& list) {
  return request.tell(entriesText(list), list);
}

Answer setDevicePowerByTimeList(const Request& request) {
  return setList(request, request.state.timetables.power, kPowerEntry);
}

Answer getDevicePowerByTimeList(const Request& request) {
  return tellList(request, request.state.timetables.power);
}

Answer setPlayByTimeList(const Request& request) {
  return setList(request, request.state.timetables.play, kPlayEntry);
}

Answer getPlayByTimeList(const Request& request) {
  return tellList(request, request.state.timetables.play);
}

Answer setBrightnessByTimeList(const Request& request) {
  return setList(request, request.state.timetables.brightness, kBrightnessEntry);
}

Answer getBrightnessByTimeList(const Request& request) {
  return tellList(request, request.state.timetables.brightness);
}

Answer setAdvanceTiming(const Request& request) {
  return setText(request, request.state.timetables.advance);
}

Answer getAdvanceTiming(const Request& request) {
  if (request.payload[0] != 1) return request.refuse();
  return tellText(request, request.state.timetables.advance);
}

Answer removeAdvanceTiming(const Request& request) {
  if (request.payload[0] != 1) return request.refuse();
  if (request.state.timetables.advance.empty()) return request.refuse("there is none");
  request.state.timetables.advance.clear();
  return request.accept();
}

constexpr Row kRows[] = {
    {command("setDevicePowerByTimeList"), setDevicePowerByTimeList, atLeast(1)},
    {command("getDevicePowerByTimeList"), getDevicePowerByTimeList},
    {command("setPlayByTimeList"), setPlayByTimeList, atLeast(1)},
    {command("getPlayByTimeList"), getPlayByTimeList},
    {command("setBrightnessByTimeList"), setBrightnessByTimeList, atLeast(1)},
    {command("getBrightnessByTimeList"), getBrightnessByTimeList},
    {command("setAdvanceTiming"), setAdvanceTiming, {1, kMaxAdvance}},
    {command("getAdvanceTiming"), getAdvanceTiming, exactly(1)},
    {command("removeAdvanceTiming"), removeAdvanceTiming, exactly(1)},
};

}  // namespace

std::span<const Row> timetableRows() { return kRows; }

}  // namespace tovi::sim
