// SPDX-License-Identifier: MIT
#include "tests/device/call_table.h"

namespace tovi::test {

static std::string show(VirtualParam param) {
  return show(param.enabled, param.interval, param.value);
}

const DeviceNetBasicParam kNet = {"192.168.1.10", "255.255.255.0", "192.168.1.1", 5005, "10.0.0.2"};

const std::vector<Call> kNetworkCalls = {
    {TELL(setDeviceNetBasicParam(kNet)),
     "19 C0 A8 01 0A FF FF FF 00 C0 A8 01 01 8D 13 0A 00 00 02 00 00 00 00 00 00 00 00",
     unanswered()},
    {TELL(resetDeviceIpToDefault()), "21", unanswered()},
    {CALL(setVirtualConnection(true, 59, 3)), "F3 01 3C 00 03", setting("F4")},
    {CALL(setVirtualConnection(true, 61, 3)), "F3 01 3D 00 03", setting("F4")},
    {CALL(setVirtualConnection(false, 0x1234, 0x1FF)), "F3 00 34 12 FF", setting("F4")},
    {CALL(getVirtualConnection()), "D3",
     answers("false -1 -1", {{"D3 01 FE FF FD", "true 65534 253"},
                             {"D3 02 3C 00 03", "false 60 3"},
                             {"D3 01 3C 00", "false -1 -1", BadReply}})},
    {CALL(setPingIp("1.2")), "EF 01 01 31 2E 32", confirmation("EF 01 01")},
    {CALL(getPingIp()), "EF 02 01", text("EF 02 01")},
    {CALL(setServerIPLists("s")), "EF 0D 01 73", confirmation("EF 0D 01")},
    {CALL(getServerIPLists()), "EF 0E 01", text("EF 0E 01")},
    {CALL(addWhitelist("w")), "EF 0A 01 77", confirmation("EF 0A 01")},
    {CALL(removeWhitelist("w")), "EF 0B 01 77", confirmation("EF 0B 01")},
    {CALL(getWhitelist()), "EF 09 01", text("EF 09 01")},
};

}  // namespace tovi::test
