// SPDX-License-Identifier: MIT
#include "tests/device/call_table.h"

namespace tovi::test {
namespace {

using T = ToviTraffic;

std::string param(VirtualParam param) {
  return show(int{param.enabled}, param.interval, param.value);
}

const Call kCalls[] = {
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
     "D3 01 3C 00", "0 -1 -1", BadReply},
    {"setPingIp", [](T& t) { return show(t.setPingIp("1.2")); }, "EF 01 01 31 2E 32", "EF 01 01 01",
     "1"},
    {"getPingIp", [](T& t) { return t.getPingIp(); }, "EF 02 01", "EF 02 01 01 31 2E", "1."},
    {"getPingIp refused", [](T& t) { return t.getPingIp(); }, "EF 02 01", "EF 02 01 00 31 2E", "",
     Rejected},
    {"getPingIp of three bytes", [](T& t) { return t.getPingIp(); }, "EF 02 01", "EF 02 01 01", "",
     BadReply},
    {"getPingIp silent", [](T& t) { return t.getPingIp(); }, "EF 02 01", "", "", NoReply},
    {"setServerIPLists", [](T& t) { return show(t.setServerIPLists("s")); }, "EF 0D 01 73", "",
     "-1", NoReply},
    {"setServerIPLists", [](T& t) { return show(t.setServerIPLists("s")); }, "EF 0D 01 73",
     "EF 0D 01 01", "1"},
    {"getServerIPLists", [](T& t) { return t.getServerIPLists(); }, "EF 0E 01", "EF 0E 01 01 61",
     "a"},
    {"addWhitelist", [](T& t) { return show(t.addWhitelist("w")); }, "EF 0A 01 77", "EF 0A 01 00",
     "0", Rejected},
    {"removeWhitelist", [](T& t) { return show(t.removeWhitelist("w")); }, "EF 0B 01 77",
     "EF 0B 01 01", "1"},
    {"getWhitelist", [](T& t) { return t.getWhitelist(); }, "EF 09 01", "EF 09 01 01 61", "a"},
};

}  // namespace

const std::span<const Call> kNetworkCalls = kCalls;

}  // namespace tovi::test
