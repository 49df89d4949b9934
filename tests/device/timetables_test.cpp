// SPDX-License-Identifier: MIT
#include <tovisdk/codec.h>

#include "tests/device/call_table.h"

namespace tovi::test {
namespace {

using T = ToviTraffic;

std::string shown(const std::tm& time) {
  return show(time.tm_year, time.tm_mon, time.tm_mday, time.tm_hour, time.tm_min, time.tm_sec);
}
std::string shown(const DevicePowerByTimeParam& e) {
  return shown(e.startTime) + " to " + shown(e.endTime);
}
std::string shown(const PlayByTimeParam& e) {
  return shown(e.startTime) + " to " + shown(e.endTime) + " plays " + show(e.playId);
}
std::string shown(const BrightnessByTimeParam& e) {
  return shown(e.startTime) + " to " + shown(e.endTime) + " at " + show(e.brightness);
}

template <class Entry>
std::string taken(std::list<Entry>* list) {
  if (list == nullptr) return "null";
  std::string text = show(static_cast<int>(list->size()));
  for (const Entry& entry : *list) text += "; " + shown(entry);
  deleteObj(&list);
  return text;
}

const std::tm kStart = getTm(2024, 1, 2, 3, 4, 5);
const std::tm kEnd = getTm(2025, 12, 31, 23, 59, 58);

const Call kCalls[] = {
    {"setDevicePowerByTimeList",
     [](T& t) {
       return show(t.setDevicePowerByTimeList({{kStart, kEnd}}));
     },
     "8A 01 02 01 E8 07 05 04 03 1F 0C E9 07 3A 3B 17", "8B 01", "1"},
    {"setDevicePowerByTimeList empty", [](T& t) { return show(t.setDevicePowerByTimeList({})); },
     "8A 00", "8B 01", "1"},
    {"getDevicePowerByTimeList", [](T& t) { return taken(t.getDevicePowerByTimeList()); }, "52",
     "52 01 02 03 E8 07 05 04 03 1F 0C E9 07 3A 3B 17", "1; 124 2 2 3 4 5 to 125 11 31 23 59 58"},
    {"getDevicePowerByTimeList empty", [](T& t) { return taken(t.getDevicePowerByTimeList()); },
     "52", "52 00", "0"},
    {"getDevicePowerByTimeList of one byte",
     [](T& t) { return taken(t.getDevicePowerByTimeList()); }, "52", "52", "null", BadReply},
    {"getDevicePowerByTimeList cut in the second entry",
     [](T& t) { return taken(t.getDevicePowerByTimeList()); }, "52",
     "52 02 02 03 E8 07 05 04 03 1F 0C E9 07 3A 3B 17 02 03 E8 07 05 04 03 1F 0C E9 07 3A 3B",
     "1; 124 2 2 3 4 5 to 125 11 31 23 59 58"},
    {"getDevicePowerByTimeList negative", [](T& t) { return taken(t.getDevicePowerByTimeList()); },
     "52", "52 FF 02 03 E8 07 05 04 03 1F 0C E9 07 3A 3B 17", "0"},
    {"getDevicePowerByTimeList silent", [](T& t) { return taken(t.getDevicePowerByTimeList()); },
     "52", "", "null", NoReply},
    {"setPlayByTimeList",
     [](T& t) {
       return show(t.setPlayByTimeList({{kStart, kEnd, 300}, {}}));
     },
     "41 02 02 01 E8 07 05 04 03 1F 0C E9 07 3A 3B 17 2C 00 00 00 00 00 00 00 00 00 00 00 00 00 00 "
     "00 00 00",
     "42 00", "-12", Rejected},
    {"getPlayByTimeList", [](T& t) { return taken(t.getPlayByTimeList()); }, "53",
     "53 01 02 01 E8 07 05 04 03 1F 0C 00 80 3A 3B 17 FE 77",
     "1; 124 0 2 3 4 5 to -34668 11 31 23 59 58 plays -2"},
    {"setBrightnessByTimeList",
     [](T& t) {
       return show(t.setBrightnessByTimeList({{kStart, kEnd, 511}}));
     },
     "07 03 00 | 43 01 02 01 E8 07 05 04 03 1F 0C E9 07 3A 3B 17 FF", "08 01 | 44 01", "1"},
    {"setBrightnessByTimeList refused", [](T& t) { return show(t.setBrightnessByTimeList({})); },
     "07 03 00", "08 00", "-12", Rejected},
    {"getBrightnessByTimeList", [](T& t) { return taken(t.getBrightnessByTimeList()); }, "51",
     "51 01 02 01 E8 07 05 04 03 FF 00 E9 07 FF FF FF FE",
     "1; 124 0 2 3 4 5 to 125 -1 255 255 255 255 at 254"},
    {"setAdvanceTiming", [](T& t) { return show(t.setAdvanceTiming("t")); }, "DC 74", "DC 01", "1"},
    {"setAdvanceTiming too long",
     [](T& t) { return show(t.setAdvanceTiming(std::string(4097, 'x'))); }, "", "", "-15",
     RefusedArgument},
    {"getAdvanceTiming", [](T& t) { return t.getAdvanceTiming(); }, "DD 01", "DD 01 61", "a"},
    {"removeAdvanceTiming", [](T& t) { return show(t.removeAdvanceTiming()); }, "DE 01", "DE 01",
     "1"},
};

}  // namespace

const std::span<const Call> kTimetablesCalls = kCalls;

}  // namespace tovi::test
