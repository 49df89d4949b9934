#include "tests/device/call_table.h"

namespace tovi::test {
namespace {

using T = ToviTraffic;

std::string param(VirtualParam param) {
  return show(int{param.enabled}, param.interval, param.value);
}

const std::string k1024(1024, 'x');
const std::string k4096(4096, 'x');

const Call kCalls[] = {
    {"setWifiState", [](T& t) { return show(t.setWifiState(true)); }, "CB 01", "CB 01", "true"},
    {"setWifiState refused", [](T& t) { return show(t.setWifiState(false)); }, "CB 00", "CB 00",
     "false"},
    {"getWifiState", [](T& t) { return show(t.getWifiState()); }, "CA", "CA FE", "-2"},
    {"getWifiState short", [](T& t) { return show(t.getWifiState()); }, "CA", "CA", "-1"},
    {"setWifiApState", [](T& t) { return show(t.setWifiApState(true)); }, "C5 01", "C5 01", "1"},
    {"getWifiApState", [](T& t) { return show(t.getWifiApState()); }, "9B", "9B 01", "1"},
    {"getWifiApState silent", [](T& t) { return show(t.getWifiApState()); }, "9B", "", "-1"},
    {"connectWifi", [](T& t) { return show(t.connectWifi("ap,\xC3\xA4")); }, "CF 61 70 2C C3 A4",
     "CF 01", "1"},
    {"connectWifi too long", [](T& t) { return show(t.connectWifi(k1024 + "x")); }, "", "", "-15"},
    {"setWifiApConfig", [](T& t) { return show(t.setWifiApConfig("ap")); }, "C6 61 70", "C6 01",
     "1"},
    {"setWifiApConfig too long", [](T& t) { return show(t.setWifiApConfig(k1024 + "x")); }, "", "",
     "-15"},
    {"setLoraInfo", [](T& t) { return show(t.setLoraInfo("lo")); }, "D7 6C 6F", "D7 01", "1"},
    {"setLoraInfo too long", [](T& t) { return show(t.setLoraInfo(k4096 + "x")); }, "", "", "-15"},
    {"setSensorInfo", [](T& t) { return show(t.setSensorInfo("")); }, "C8", "C8 01", "1"},
    {"setSensorInfo too long", [](T& t) { return show(t.setSensorInfo(k4096 + "x")); }, "", "",
     "-15"},
    {"removeAppPageName", [](T& t) { return show(t.removeAppPageName("a.b")); }, "9F 61 2E 62",
     "9F 01", "1"},
    {"removeAppPageName empty", [](T& t) { return show(t.removeAppPageName("")); }, "", "", "-15"},
    {"removeAppPageName too long",
     [](T& t) { return show(t.removeAppPageName(std::string(257, 'x'))); }, "", "", "-15"},
    {"setPingIp", [](T& t) { return show(t.setPingIp("1.2")); }, "EF 01 01 31 2E 32", "EF 01 01 01",
     "1"},
    {"setPingIp too long", [](T& t) { return show(t.setPingIp(std::string(65518, 'x'))); }, "", "",
     "-15"},
    {"addWhitelist", [](T& t) { return show(t.addWhitelist("w")); }, "EF 0A 01 77", "EF 0A 01 00",
     "0"},
    {"removeWhitelist", [](T& t) { return show(t.removeWhitelist("w")); }, "EF 0B 01 77",
     "EF 0B 01 01", "1"},
    {"setServerIPLists", [](T& t) { return show(t.setServerIPLists("s")); }, "EF 0D 01 73", "",
     "-1"},
    {"setServerIPLists", [](T& t) { return show(t.setServerIPLists("s")); }, "EF 0D 01 73",
     "EF 0D 01 01", "1"},
    {"switchToSoftsim", [](T& t) { return show(t.switchToSoftsim()); }, "EF 05 01", "EF 05 01 01",
     "1"},
    {"setDeviceNetBasicParam",
     [](T& t) {
       t.setDeviceNetBasicParam({"192.168.1.10", "255.255.255.0", "192.168.1.1", 5005, "10.0.0.2"});
       return std::string("-");
     },
     "19 C0 A8 01 0A FF FF FF 00 C0 A8 01 01 8D 13 0A 00 00 02 00 00 00 00 00 00 00 00", "", "-"},
    {"resetDeviceIpToDefault", [](T& t) { return t.resetDeviceIpToDefault(), std::string("-"); },
     "21", "", "-"},
    {"setVirtualConnection", [](T& t) { return show(t.setVirtualConnection(true, 10, 3)); },
     "F3 01 3C 00 03", "F4 01", "1"},
    {"setVirtualConnection long",
     [](T& t) { return show(t.setVirtualConnection(false, 0x1234, 0x1FF)); }, "F3 00 34 12 FF",
     "F4 01", "1"},
    {"getVirtualConnection", [](T& t) { return param(t.getVirtualConnection()); }, "D3",
     "D3 01 FF FF FF", "1 65535 255"},
    {"getVirtualConnection short", [](T& t) { return param(t.getVirtualConnection()); }, "D3",
     "D3 01 3C 00", "0 -1 -1"},
    {"setRDSRoad", [](T& t) { return show(t.setRDSRoad("109x")); }, "99 01 00 09 48", "99 01", "1"},
    {"getRDSRoad", [](T& t) { return t.getRDSRoad(); }, "9A 01", "9A 01 00 09", "\xCA\x31\x30\x39"},
    {"getRDSRoad silent", [](T& t) { return t.getRDSRoad(); }, "9A 01", "", ""},
};

}  // namespace

const std::span<const Call> kNetworkCalls = kCalls;

}  // namespace tovi::test
