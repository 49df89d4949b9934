// SPDX-License-Identifier: MIT
#include "tests/device/call_table.h"

namespace tovi::test {
namespace {

using T = ToviTraffic;

// Date, door, power, screen, temperature, input, ambient, mode, brightness.
std::string status(DeviceType* status) {
  if (status == nullptr) return "null";
  const std::tm& date = *status->getDate();
  const std::string text =
      show(date.tm_year, date.tm_mon, date.tm_mday, date.tm_hour, date.tm_min, date.tm_sec) + ": " +
      show(int{status->isBoxDoorOpen()}, int{status->isScreenPowerOpen()}, status->isScreenOpen(),
           status->getTemperature(), int{status->isInputSourceInside()},
           status->getEnvironmentBrightness(), status->getBrightnessType(),
           status->getScreenBrightness());
  deleteObj(&status);
  return text;
}

std::string shown(CpuAndMemoryInfo i) {
  return show(i.result, i.cpuUsage, i.diskTotal, i.diskFree);
}
std::string shown(DeviceMemorySize s) { return show(s.total, s.free); }

const std::string kCpu =
    "AF 01" + jsonHex(R"({"cpuUsage":"12%","diskTotal":4294967296,"diskFree":-1})");

const Call kCalls[] = {
    {"setDeviceName", [](T& t) { return show(t.setDeviceName("ab")); }, "7E 00 61 62", "7F 01",
     "1"},
    {"setDeviceName in Chinese", [](T& t) { return show(t.setDeviceName("限速")); },
     "7E 00 E9 99 90 E9 80 9F", "7F 01", "1"},
    {"setDeviceName empty", [](T& t) { return show(t.setDeviceName("")); }, "7E 00", "7F 01", "1"},
    {"setDeviceName null", [](T& t) { return show(t.setDeviceName(nullptr)); }, "", "", "-15",
     RefusedArgument},
    {"getDeviceName of two bytes", [](T& t) { return show(t.getDeviceName()); }, "7E 01", "7F 01",
     "null", BadReply},
    {"getDeviceName silent", [](T& t) { return show(t.getDeviceName()); }, "7E 01", "", "null",
     NoReply},
    {"getDeviceName", [](T& t) { return show(t.getDeviceName()); }, "7E 01", "7F 01 61 62 00 63",
     "ab"},
    {"getDeviceVersion", [](T& t) { return show(t.getDeviceVersion()); }, "23", "24 56 31", "V1"},
    {"getDeviceVersion empty", [](T& t) { return show(t.getDeviceVersion()); }, "23", "24", ""},
    {"getDeviceVersion silent", [](T& t) { return show(t.getDeviceVersion()); }, "23", "", "null",
     NoReply},
    {"getSn silent", [](T& t) { return t.getSn(); }, "D5", "", "", NoReply},
    {"getSn", [](T& t) { return t.getSn(); }, "D5", "D5 53 4E", "SN"},
    {"getMac", [](T& t) { return t.getMac(); }, "B3", "B3 00 1A 0B 00 FF 05", "0:1a:b:0:ff:5"},
    {"getMac small", [](T& t) { return t.getMac(); }, "B3", "B3 0A 00 00 00 00 01", "a:0:0:0:0:1"},
    {"getMac short", [](T& t) { return t.getMac(); }, "B3", "B3 00 1A 0B 00 FF", "", BadReply},
    {"getMac long", [](T& t) { return t.getMac(); }, "B3", "B3 00 1A 0B 00 FF 05 06", "", BadReply},
    {"getMac silent", [](T& t) { return t.getMac(); }, "B3", "", "", NoReply},
    {"getDeviceType", [](T& t) { return status(t.getDeviceType()); }, "01",
     "02 34 12 00 00 00 00 05 01 00 01 01 19 01 00 00 C8 02 50",
     "5 5 5 5 5 5: 1 0 1 25 1 200 2 80"},
    {"getDeviceType only 1 is true, below zero", [](T& t) { return status(t.getDeviceType()); },
     "01", "02 00 00 00 00 00 00 FF 02 02 02 00 19 02 00 00 FF FF FF",
     "-1 -1 -1 -1 -1 -1: 0 0 2 -25 0 255 -1 255"},
    {"getDeviceType signed magnitude", [](T& t) { return status(t.getDeviceType()); }, "01",
     "02 00 00 00 00 00 00 00 00 01 80 01 F6 00 00 00 00 80 00",
     "0 0 0 0 0 0: 0 1 -128 -10 0 0 -128 0"},
    {"getDeviceType too short", [](T& t) { return status(t.getDeviceType()); }, "01",
     "02 34 12 00 00 00 00 05 01 01 01 01 19 01 00 00 C8 02", "null", BadReply},
    {"getDeviceType too long", [](T& t) { return status(t.getDeviceType()); }, "01",
     "02 34 12 00 00 00 00 05 01 01 01 01 19 01 00 00 C8 02 50 00", "null", BadReply},
    {"getDeviceMemorySize", [](T& t) { return shown(t.getDeviceMemorySize()); }, "47",
     "48 00 00 01 00 FF FF FF FF", "65536 -1"},
    {"getDeviceMemorySize short", [](T& t) { return shown(t.getDeviceMemorySize()); }, "47",
     "48 00 00 01 00 FF FF FF", "-1 -1", BadReply},
    {"getCpuAndMemoryInfo", [](T& t) { return shown(t.getCpuAndMemoryInfo()); }, "AF", kCpu.c_str(),
     "1 12% 4294967296 -1"},
    {"getCpuAndMemoryInfo refused", [](T& t) { return shown(t.getCpuAndMemoryInfo()); }, "AF",
     "AF 02 7B 7D", "0   ", Rejected},
    {"getSystemInfo", [](T& t) { return t.getSystemInfo(); }, "C2", "C2 01 61", "a"},
    {"getSurveil", [](T& t) { return t.getSurveil(); }, "A0", "A0 01 61 62 00 63", "ab"},
    {"getSurveil refused", [](T& t) { return t.getSurveil(); }, "A0", "A0 02 61", "", Rejected},
    {"getSurveil of two bytes", [](T& t) { return t.getSurveil(); }, "A0", "A0 01", "", BadReply},
    {"getSurveil silent", [](T& t) { return t.getSurveil(); }, "A0", "", "", NoReply},
};

}  // namespace

const std::span<const Call> kIdentityCalls = kCalls;

}  // namespace tovi::test
