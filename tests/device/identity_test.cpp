// SPDX-License-Identifier: MIT
#include "tests/device/call_table.h"

namespace tovi::test {

// Date; door, power, screen, temperature, input, ambient, mode, brightness.
static std::string show(DeviceType* status) {
  return taken(status, [](const DeviceType& s) {
    const std::tm& date = *s.getDate();
    return show(date.tm_year, date.tm_mon, date.tm_mday, date.tm_hour, date.tm_min, date.tm_sec) +
           ": " +
           show(int{s.isBoxDoorOpen()}, int{s.isScreenPowerOpen()}, s.isScreenOpen(),
                s.getTemperature(), int{s.isInputSourceInside()}, s.getEnvironmentBrightness(),
                s.getBrightnessType(), s.getScreenBrightness());
  });
}

static std::string show(CpuAndMemoryInfo i) {
  return show(i.result, i.cpuUsage, i.diskTotal, i.diskFree);
}
static std::string show(DeviceMemorySize s) { return show(s.total, s.free); }

const std::vector<Call> kIdentityCalls = {
    {CALL(setDeviceName("ab")), "7E 00 61 62", setting("7F")},
    {CALL(setDeviceName("限速")), "7E 00 E9 99 90 E9 80 9F", setting("7F")},
    {CALL(setDeviceName("")), "7E 00", setting("7F")},
    {CALL(setDeviceName(nullptr)), "", {"-15"}},
    {CALL(getDeviceName()), "7E 01",
     answers("null",
             {{"7F 01 61 62 00 63", "ab"}, {"7F 01 61", "a"}, {"7F 01", "null", BadReply}})},
    {CALL(getDeviceVersion()), "23", answers("null", {{"24 56 31", "V1"}, {"24", ""}})},
    {CALL(getSn()), "D5", answers("", {{"D5 53 4E 00 53", "SN"}, {"D5", ""}})},
    {CALL(getMac()), "B3",
     answers("", {{"B3 00 1A 0B 00 FF 05", "0:1a:b:0:ff:5"},
                  {"B3 00 1A 0B 00 FF", "", BadReply},
                  {"B3 00 1A 0B 00 FF 05 06", "", BadReply}})},
    {CALL(getDeviceType()), "01",
     answers("null",
             {{"02 34 12 00 00 00 00 05 01 00 01 01 19 01 00 00 C8 02 50",
               "5 5 5 5 5 5: 1 0 1 25 1 200 2 80"},
              // Only 1 is true, and anything else a minus.
              {"02 00 00 00 00 00 00 FF 02 02 02 00 19 02 00 00 FF FF FF",
               "-1 -1 -1 -1 -1 -1: 0 0 2 -25 0 255 -1 255"},
              {"02 00 00 00 00 00 00 00 00 01 80 01 F6 00 00 00 00 80 00",
               "0 0 0 0 0 0: 0 1 -128 -10 0 0 -128 0"},
              {"02 34 12 00 00 00 00 05 01 01 01 01 19 01 00 00 C8 02", "null", BadReply},
              {"02 34 12 00 00 00 00 05 01 01 01 01 19 01 00 00 C8 02 50 00", "null", BadReply}})},
    {CALL(getDeviceMemorySize()), "47",
     answers("-1 -1", {{"48 04 03 02 01 FE FF FF FF", "16909060 -2"},
                       {"48 00 00 01 00 FF FF FF", "-1 -1", BadReply}})},
    {CALL(getCpuAndMemoryInfo()), "AF",
     answers("0   ", {{with("AF 01", R"({"cpuUsage":"12%","diskTotal":4294967296,"diskFree":-1})"),
                       "1 12% 4294967296 -1"},
                      {with("AF 01", R"({"diskFree":7})"), "1   7"},
                      {with("AF 02", "{}"), "0   ", Rejected}})},
    {CALL(getSystemInfo()), "C2", text("C2")},
    {CALL(getSurveil()), "A0", text("A0")},
};

}  // namespace tovi::test
