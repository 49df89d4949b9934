// SPDX-License-Identifier: MIT
#include "tests/device/call_table.h"

namespace tovi::test {

static std::string show(ResultParam info) { return show(info.result, info.text); }

const std::vector<Call> kWirelessCalls = {
    {CALL(setWifiState(true)), "CB 01", flag("CB")},
    {CALL(setWifiState(false)), "CB 00", flag("CB")},
    {CALL(getWifiState()), "CA", signedByte("CA")},
    {CALL(getWifiList()), "CE", text("CE")},
    {CALL(connectWifi("ap,ä")), "CF 61 70 2C C3 A4", setting("CF")},
    {CALL(setWifiApState(true)), "C5 01", setting("C5")},
    {CALL(setWifiApState(false)), "C5 00", setting("C5")},
    {CALL(getWifiApState()), "9B", signedByte("9B")},
    {CALL(setWifiApConfig("ap")), "C6 61 70", setting("C6")},
    {CALL(getWifiApConfig()), "C4", text("C4")},
    {CALL(getMobileInfo()), "C9", text("C9")},
    {CALL(getSimInfo()), "EF 08 01", text("EF 08 01")},
    {CALL(switchToSoftsim()), "EF 05 01", confirmation("EF 05 01")},
    {CALL(setLoraInfo("lo")), "D7 6C 6F", setting("D7")},
    {CALL(getLoraInfo()), "D6",
     answers("0 ", {{"D6 01 61", "1 a"},
                    {"D6 01 00", "1 "},
                    {"D6 00 61", "0 ", Rejected},
                    {"D6 01", "0 ", BadReply}})},
    {CALL(setRDSRoad("109x")), "99 01 00 09 48", setting("99")},
    {CALL(getRDSRoad()), "9A 01",
     answers("", {{"9A 01 00 09", "\xCA\x31\x30\x39"}, {"9A", "\xCA"}})},
};

}  // namespace tovi::test
