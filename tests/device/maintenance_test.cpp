// SPDX-License-Identifier: MIT
#include "tests/device/call_table.h"

namespace tovi::test {

static std::string show(BackUpsInfo* info) {
  return taken(info, [](const BackUpsInfo& i) { return show(i.state, i.times); });
}

const std::vector<Call> kMaintenanceCalls = {
    {CALL(restartDevice()), "0D", setting("0E")},
    {TELL(sendHeartBeat()), "00 00", unanswered()},
    {CALL(setCloseScreenTemperature(150)), "15 00 00 00 00 00 96", setting("16")},
    {CALL(setCloseScreenTemperature(0)), "15 00 00 00 00 00 00", setting("16")},
    {CALL(setCloseScreenTemperature(151)), "", {"-15"}},
    {CALL(setCloseScreenTemperature(-1)), "", {"-15"}},
    {CALL(getCloseScreenTemperature()), "29",
     answers("-1", {{"2A 01 02 03 04 05 F6", "-10"}, {"2A 01 02 03 04 05", "-11", BadReply}})},
    {CALL(solidify(0xFE)), "EF 13 01 FE", confirmation("EF 13 01")},
    {CALL(backups()), "EF 11 01 01",
     answers("-1", {{"EF 11 01 00 FE", "-2"},
                    {"EF 11 01 01 00", "0", Rejected},
                    {"EF 11 01 01", "-1", BadReply}})},
    {CALL(getBackupsTimes()), "EF 11 01 00",
     answers("-1 ", {{"EF 11 01 01 01 20 0A FF", "1 200AFF"},
                     {"EF 11 01 01 FE 20", "-2 "},
                     {"EF 11 01 01 01", "-1 ", BadReply}})},
    {CALL(setSSHEnabled(true)), "EF 10 01 01 01", confirmation("EF 10 01")},
    {CALL(setSSHEnabled(false)), "EF 10 01 01 00", confirmation("EF 10 01")},
    {CALL(getSSHEnabled()), "EF 10 01 00",
     answers("-1", {{"EF 10 01 00 07", "1"},
                    {"EF 10 01 00 00", "0"},
                    {"EF 10 01 01 01", "-1", Rejected},
                    {"EF 10 01 00", "-1", BadReply}})},
    {CALL(getLogZipPath()), "EF 0F 01", text("EF 0F 01")},
    {CALL(setSensorInfo("s")), "C8 73", setting("C8")},
    {CALL(getSensorInfo()), "C7", text("C7")},
    {CALL(removeAppPageName("a.b")), "9F 61 2E 62", setting("9F")},
};

}  // namespace tovi::test
