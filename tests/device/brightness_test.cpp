// SPDX-License-Identifier: MIT
#include "tests/device/call_table.h"

namespace tovi::test {
namespace {

using T = ToviTraffic;

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

std::string info(BrightnessInfo info) { return show(info.mode, info.brightness); }

const Call kCalls[] = {
    {"setBrightness lowest", [](T& t) { return show(t.setBrightness(0)); }, "07 02 00", "08 01",
     "1"},
    {"setBrightness highest", [](T& t) { return show(t.setBrightness(255)); }, "07 02 FF", "08 01",
     "1"},
    {"setBrightness above", [](T& t) { return show(t.setBrightness(256)); }, "07 02 7D", "08 01",
     "1"},
    {"setBrightness below", [](T& t) { return show(t.setBrightness(-1)); }, "07 02 7D", "08 01",
     "1"},
    {"setBrightness", [](T& t) { return show(t.setBrightness(80)); }, "07 02 50", "08 01", "1"},
    {"getBrightnessInfo", [](T& t) { return info(t.getBrightnessInfo()); }, "C3", "C3 FE FF",
     "-2 255"},
    {"getBrightnessInfo short", [](T& t) { return info(t.getBrightnessInfo()); }, "C3", "C3 02",
     "-1 -1", BadReply},
    {"getBrightnessInfo silent", [](T& t) { return info(t.getBrightnessInfo()); }, "C3", "",
     "-1 -1", NoReply},
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
     "07 01 00", "08 02", "-12", Rejected},
    {"setBrightnessAuto null", [](T& t) { return show(t.setBrightnessAuto(nullptr)); }, "", "",
     "-15", RefusedArgument},
    {"getBrightnessAuto", [](T& t) { return taken(t.getBrightnessAuto()); }, "2B",
     "2C 01 FF 77 02 02 77 03 03 77 04 04 77 05 05 77 06 06 77 07 07 77 08 09 77",
     "1 255;2 2;3 3;4 4;5 5;6 6;7 7;8 9;"},
    {"getBrightnessAuto of 24 bytes", [](T& t) { return taken(t.getBrightnessAuto()); }, "2B",
     "2C 01 FF 77 02 02 77 03 03 77 04 04 77 05 05 77 06 06 77 07 07 77 08 09", "null", BadReply},
    {"setAutoBrightnessTimeParam",
     [](T& t) { return show(t.setAutoBrightnessTimeParam(5, '\xFE')); }, "AA 05 FE", "AA 01",
     "true"},
    {"setAutoBrightnessTimeParam refused",
     [](T& t) { return show(t.setAutoBrightnessTimeParam(5, 6)); }, "AA 05 06", "AA 02", "false",
     Rejected},
    {"setAutoBrightnessTimeParam short",
     [](T& t) { return show(t.setAutoBrightnessTimeParam(5, 6)); }, "AA 05 06", "AA", "false",
     BadReply},
    {"setAutoBrightnessTimeParam first 0",
     [](T& t) { return show(t.setAutoBrightnessTimeParam(0, 5)); }, "", "", "false",
     RefusedArgument},
    {"setAutoBrightnessTimeParam second 0",
     [](T& t) { return show(t.setAutoBrightnessTimeParam(5, 0)); }, "", "", "false",
     RefusedArgument},
    {"setDeviceVolume", [](T& t) { return show(t.setDeviceVolume(0x1C8)); }, "45 C8", "46 01", "1"},
    {"getVolumeValue of one byte", [](T& t) { return show(t.getVolumeValue() & 0xFF); }, "A9", "A9",
     "255", BadReply},
    {"getVolumeValue silent", [](T& t) { return show(t.getVolumeValue() & 0xFF); }, "A9", "", "255",
     NoReply},
    {"getVolumeValue", [](T& t) { return show(t.getVolumeValue() & 0xFF); }, "A9", "A9 C8 07",
     "200"},
};

}  // namespace

const std::span<const Call> kBrightnessCalls = kCalls;

}  // namespace tovi::test
