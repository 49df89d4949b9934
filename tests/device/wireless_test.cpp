// SPDX-License-Identifier: MIT
#include "tests/device/call_table.h"

namespace tovi::test {
namespace {

using T = ToviTraffic;

std::string shown(const ResultParam& result) { return show(result.result, result.text); }

const std::string k1024(1024, 'x');
const std::string k4096(4096, 'x');

const Call kCalls[] = {
    {"setWifiState", [](T& t) { return show(t.setWifiState(true)); }, "CB 01", "CB 01", "true"},
    {"setWifiState refused", [](T& t) { return show(t.setWifiState(false)); }, "CB 00", "CB 00",
     "false", Rejected},
    {"getWifiState", [](T& t) { return show(t.getWifiState()); }, "CA", "CA FE", "-2"},
    {"getWifiState short", [](T& t) { return show(t.getWifiState()); }, "CA", "CA", "-1", BadReply},
    {"getWifiList", [](T& t) { return t.getWifiList(); }, "CE", "CE 01 61", "a"},
    {"connectWifi", [](T& t) { return show(t.connectWifi("ap,\xC3\xA4")); }, "CF 61 70 2C C3 A4",
     "CF 01", "1"},
    {"connectWifi too long", [](T& t) { return show(t.connectWifi(k1024 + "x")); }, "", "", "-15",
     RefusedArgument},
    {"setWifiApState", [](T& t) { return show(t.setWifiApState(true)); }, "C5 01", "C5 01", "1"},
    {"getWifiApState", [](T& t) { return show(t.getWifiApState()); }, "9B", "9B 01", "1"},
    {"getWifiApState silent", [](T& t) { return show(t.getWifiApState()); }, "9B", "", "-1",
     NoReply},
    {"setWifiApConfig", [](T& t) { return show(t.setWifiApConfig("ap")); }, "C6 61 70", "C6 01",
     "1"},
    {"setWifiApConfig too long", [](T& t) { return show(t.setWifiApConfig(k1024 + "x")); }, "", "",
     "-15", RefusedArgument},
    {"getWifiApConfig", [](T& t) { return t.getWifiApConfig(); }, "C4", "C4 01 61", "a"},
    {"getMobileInfo", [](T& t) { return t.getMobileInfo(); }, "C9", "C9 01 61", "a"},
    {"getSimInfo", [](T& t) { return t.getSimInfo(); }, "EF 08 01", "EF 08 01 01 61", "a"},
    {"switchToSoftsim", [](T& t) { return show(t.switchToSoftsim()); }, "EF 05 01", "EF 05 01 01",
     "1"},
    {"setLoraInfo", [](T& t) { return show(t.setLoraInfo("lo")); }, "D7 6C 6F", "D7 01", "1"},
    {"setLoraInfo too long", [](T& t) { return show(t.setLoraInfo(k4096 + "x")); }, "", "", "-15",
     RefusedArgument},
    {"getLoraInfo", [](T& t) { return shown(t.getLoraInfo()); }, "D6", "D6 01 61", "1 a"},
    {"getLoraInfo refused", [](T& t) { return shown(t.getLoraInfo()); }, "D6", "D6 00 61", "0 ",
     Rejected},
    {"getLoraInfo silent", [](T& t) { return shown(t.getLoraInfo()); }, "D6", "", "0 ", NoReply},
    {"setRDSRoad", [](T& t) { return show(t.setRDSRoad("109x")); }, "99 01 00 09 48", "99 01", "1"},
    {"getRDSRoad", [](T& t) { return t.getRDSRoad(); }, "9A 01", "9A 01 00 09", "\xCA\x31\x30\x39"},
    {"getRDSRoad silent", [](T& t) { return t.getRDSRoad(); }, "9A 01", "", "", NoReply},
};

}  // namespace

const std::span<const Call> kWirelessCalls = kCalls;

}  // namespace tovi::test
