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

std::string taken(BrightnessItem* item) {
  if (item == nullptr) return "null";
  std::string text;
  for (const BrightnessPoint& point : item->points) {
    text += show(point.environmentBrightness, point.screenBrightness) + ";";
  }
  deleteObj(&item);
  return text;
}

BrightnessItem curve() {
  BrightnessItem item;
  for (int k = 0; k < 8; ++k) item.points[k] = {k, 0x110 + k};
  return item;
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
    {"setPlayByTimeList",
     [](T& t) {
       return show(t.setPlayByTimeList({{kStart, kEnd, 300}, {}}));
     },
     "41 02 02 01 E8 07 05 04 03 1F 0C E9 07 3A 3B 17 2C 00 00 00 00 00 00 00 00 00 00 00 00 00 00 "
     "00 00 00",
     "42 00", "-12"},
    {"setBrightnessByTimeList",
     [](T& t) {
       return show(t.setBrightnessByTimeList({{kStart, kEnd, 511}}));
     },
     "07 03 00 | 43 01 02 01 E8 07 05 04 03 1F 0C E9 07 3A 3B 17 FF", "08 01 | 44 01", "1"},
    {"setBrightnessByTimeList refused", [](T& t) { return show(t.setBrightnessByTimeList({})); },
     "07 03 00", "08 00", "-12"},
    {"setBrightnessByTimeList too long",
     [](T& t) { return show(t.setBrightnessByTimeList(std::list<BrightnessByTimeParam>(4368))); },
     "", "", "-15"},
    {"getDevicePowerByTimeList", [](T& t) { return taken(t.getDevicePowerByTimeList()); }, "52",
     "52 01 02 03 E8 07 05 04 03 1F 0C E9 07 3A 3B 17", "1; 124 2 2 3 4 5 to 125 11 31 23 59 58"},
    {"getDevicePowerByTimeList empty", [](T& t) { return taken(t.getDevicePowerByTimeList()); },
     "52", "52 00", "0"},
    {"getDevicePowerByTimeList of one byte",
     [](T& t) { return taken(t.getDevicePowerByTimeList()); }, "52", "52", "null"},
    {"getDevicePowerByTimeList cut in the second entry",
     [](T& t) { return taken(t.getDevicePowerByTimeList()); }, "52",
     "52 02 02 03 E8 07 05 04 03 1F 0C E9 07 3A 3B 17 02 03 E8 07 05 04 03 1F 0C E9 07 3A 3B",
     "1; 124 2 2 3 4 5 to 125 11 31 23 59 58"},
    {"getDevicePowerByTimeList negative", [](T& t) { return taken(t.getDevicePowerByTimeList()); },
     "52", "52 FF 02 03 E8 07 05 04 03 1F 0C E9 07 3A 3B 17", "0"},
    {"getDevicePowerByTimeList silent", [](T& t) { return taken(t.getDevicePowerByTimeList()); },
     "52", "", "null"},
    {"getPlayByTimeList", [](T& t) { return taken(t.getPlayByTimeList()); }, "53",
     "53 01 02 01 E8 07 05 04 03 1F 0C 00 80 3A 3B 17 FE 77",
     "1; 124 0 2 3 4 5 to -34668 11 31 23 59 58 plays -2"},
    {"getBrightnessByTimeList", [](T& t) { return taken(t.getBrightnessByTimeList()); }, "51",
     "51 01 02 01 E8 07 05 04 03 FF 00 E9 07 FF FF FF FE",
     "1; 124 0 2 3 4 5 to 125 -1 255 255 255 255 at 254"},
    {"setBrightnessAuto",
     [](T& t) {
       BrightnessItem item = curve();
       return show(t.setBrightnessAuto(&item));
     },
     "07 01 00 | 17 00 10 00 01 11 00 02 12 00 03 13 00 04 14 00 05 15 00 06 16 00 07 17 00",
     "08 01 | 18 01", "1"},
    {"setBrightnessAuto refused",
     [](T& t) {
       BrightnessItem item = curve();
       return show(t.setBrightnessAuto(&item));
     },
     "07 01 00", "08 02", "-12"},
    {"setBrightnessAuto null", [](T& t) { return show(t.setBrightnessAuto(nullptr)); }, "", "",
     "-15"},
    {"getBrightnessAuto", [](T& t) { return taken(t.getBrightnessAuto()); }, "2B",
     "2C 01 FF 77 02 02 77 03 03 77 04 04 77 05 05 77 06 06 77 07 07 77 08 09 77",
     "1 255;2 2;3 3;4 4;5 5;6 6;7 7;8 9;"},
    {"getBrightnessAuto of 24 bytes", [](T& t) { return taken(t.getBrightnessAuto()); }, "2B",
     "2C 01 FF 77 02 02 77 03 03 77 04 04 77 05 05 77 06 06 77 07 07 77 08 09", "null"},
    {"setAutoBrightnessTimeParam",
     [](T& t) { return show(t.setAutoBrightnessTimeParam(5, '\xFE')); }, "AA 05 FE", "AA 01",
     "true"},
    {"setAutoBrightnessTimeParam refused",
     [](T& t) { return show(t.setAutoBrightnessTimeParam(5, 6)); }, "AA 05 06", "AA 02", "false"},
    {"setAutoBrightnessTimeParam short",
     [](T& t) { return show(t.setAutoBrightnessTimeParam(5, 6)); }, "AA 05 06", "AA", "false"},
    {"setAutoBrightnessTimeParam first 0",
     [](T& t) { return show(t.setAutoBrightnessTimeParam(0, 5)); }, "", "", "false"},
    {"setAutoBrightnessTimeParam second 0",
     [](T& t) { return show(t.setAutoBrightnessTimeParam(5, 0)); }, "", "", "false"},
};

}  // namespace

const std::span<const Call> kScheduleCalls = kCalls;

}  // namespace tovi::test
