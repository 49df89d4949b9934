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

std::string info(BrightnessInfo info) { return show(info.mode, info.brightness); }

const Call kCalls[] = {
    {"setPower", [](T& t) { return show(t.setPower(false)); }, "05 02", "06 01", "1"},
    {"setBoardPower on", [](T& t) { return show(t.setBoardPower(true)); }, "84 01", "85 01", "1"},
    {"setBoardPower off", [](T& t) { return show(t.setBoardPower(false)); }, "84 02", "85 00",
     "-12"},
    {"setBoardPowerAndScreenPower on",
     [](T& t) { return show(t.setBoardPowerAndScreenPower(true)); }, "25 01", "26 01", "1"},
    {"setBoardPowerAndScreenPower off",
     [](T& t) { return show(t.setBoardPowerAndScreenPower(false)); }, "25 00", "26 01", "1"},
    {"setMultiFunctionCardPower",
     [](T& t) { return show(t.setMultiFunctionCardPower(0x102, -1, true)); }, "86 02 FF 01",
     "87 01", "1"},
    {"setRelayPowers", [](T& t) { return show(t.setRelayPowers(true, false, false, true)); },
     "9E 01 02 02 01", "9E 01", "1"},
    {"getPowerState on", [](T& t) { return show(t.getPowerState()); }, "EF 14 01", "EF 14 01 01",
     "1"},
    {"getPowerState off", [](T& t) { return show(t.getPowerState()); }, "EF 14 01", "EF 14 01 00",
     "0"},
    {"getPowerState short", [](T& t) { return show(t.getPowerState()); }, "EF 14 01", "EF 14 01",
     "0"},
    {"getPowerState silent", [](T& t) { return show(t.getPowerState()); }, "EF 14 01", "", "-1"},
    {"getScreenStatus on", [](T& t) { return show(t.getScreenStatus()); }, "BA", "BA 01", "1"},
    {"getScreenStatus off", [](T& t) { return show(t.getScreenStatus()); }, "BA", "BA 00", "2"},
    {"getScreenStatus other", [](T& t) { return show(t.getScreenStatus()); }, "BA", "BA FF 01",
     "2"},
    {"getScreenStatus short", [](T& t) { return show(t.getScreenStatus()); }, "BA", "BA", "-1"},
    {"getScreenStatus silent", [](T& t) { return show(t.getScreenStatus()); }, "BA", "", "-1"},
    {"setBrightness", [](T& t) { return show(t.setBrightness(80)); }, "07 02 50", "08 01", "1"},
    {"getBrightnessInfo", [](T& t) { return info(t.getBrightnessInfo()); }, "C3", "C3 FE FF",
     "-2 255"},
    {"getBrightnessInfo short", [](T& t) { return info(t.getBrightnessInfo()); }, "C3", "C3 02",
     "-1 -1"},
    {"getBrightnessInfo silent", [](T& t) { return info(t.getBrightnessInfo()); }, "C3", "",
     "-1 -1"},
    {"setDeviceVolume", [](T& t) { return show(t.setDeviceVolume(200)); }, "45 C8", "46 01", "1"},
    {"getVolumeValue", [](T& t) { return show(t.getVolumeValue() & 0xFF); }, "A9", "A9 C8 07",
     "200"},
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
};

}  // namespace

const std::span<const Call> kSettingCalls = kCalls;

}  // namespace tovi::test
