#include "tests/device/call_table.h"

namespace tovi::test {
namespace {

using T = ToviTraffic;

std::string status(DeviceType* status) {
  if (status == nullptr) return "null";
  const std::string text = show(status->getScreenBrightness(), status->getTemperature());
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
    {"setDeviceName too long",
     [](T& t) { return show(t.setDeviceName(std::string(65517, 'x').c_str())); }, "", "", "-15"},
    {"getDeviceName", [](T& t) { return show(t.getDeviceName()); }, "7E 01", "7F 01 61 62 00 63",
     "ab"},
    {"getDeviceVersion", [](T& t) { return show(t.getDeviceVersion()); }, "23", "24 56 31", "V1"},
    {"getSn", [](T& t) { return t.getSn(); }, "D5", "D5 53 4E", "SN"},
    {"getMac", [](T& t) { return t.getMac(); }, "B3", "B3 00 1A 0B 00 FF 05", "0:1a:b:0:ff:5"},
    {"getMac small", [](T& t) { return t.getMac(); }, "B3", "B3 0A 00 00 00 00 01", "a:0:0:0:0:1"},
    {"getMac short", [](T& t) { return t.getMac(); }, "B3", "B3 00 1A 0B 00 FF", ""},
    {"getMac long", [](T& t) { return t.getMac(); }, "B3", "B3 00 1A 0B 00 FF 05 06", ""},
    {"getMac silent", [](T& t) { return t.getMac(); }, "B3", "", ""},
    {"getDeviceType", [](T& t) { return status(t.getDeviceType()); }, "01",
     "02 34 12 00 00 00 00 05 01 01 01 01 19 01 00 00 C8 02 50", "80 25"},
    {"getDeviceMemorySize", [](T& t) { return shown(t.getDeviceMemorySize()); }, "47",
     "48 00 00 01 00 FF FF FF FF", "65536 -1"},
    {"getDeviceMemorySize short", [](T& t) { return shown(t.getDeviceMemorySize()); }, "47",
     "48 00 00 01 00 FF FF FF", "-1 -1"},
    {"getCpuAndMemoryInfo", [](T& t) { return shown(t.getCpuAndMemoryInfo()); }, "AF", kCpu.c_str(),
     "1 12% 4294967296 -1"},
    {"getCpuAndMemoryInfo refused", [](T& t) { return shown(t.getCpuAndMemoryInfo()); }, "AF",
     "AF 02 7B 7D", "0   "},
    {"getSystemInfo", [](T& t) { return t.getSystemInfo(); }, "C2", "C2 01 61", "a"},
    {"getSurveil", [](T& t) { return t.getSurveil(); }, "A0", "A0 01 61 62 00 63", "ab"},
    {"getSurveil refused", [](T& t) { return t.getSurveil(); }, "A0", "A0 02 61", ""},
    {"getSurveil of two bytes", [](T& t) { return t.getSurveil(); }, "A0", "A0 01", ""},
    {"getSurveil silent", [](T& t) { return t.getSurveil(); }, "A0", "", ""},
};

}  // namespace

const std::span<const Call> kIdentityCalls = kCalls;

}  // namespace tovi::test
