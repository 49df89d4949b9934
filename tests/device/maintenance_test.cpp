// SPDX-License-Identifier: MIT
#include "tests/device/call_table.h"

namespace tovi::test {
namespace {

using T = ToviTraffic;

std::string info(BackUpsInfo* info) {
  const std::string text = show(info->state, info->times);
  deleteObj(&info);
  return text;
}

const std::string k4096(4096, 'x');

const Call kCalls[] = {
    {"restartDevice", [](T& t) { return show(t.restartDevice()); }, "0D", "0E 01", "1"},
    {"sendHeartBeat", [](T& t) { return t.sendHeartBeat(), std::string("-"); }, "00 00", "", "-"},
    {"setCloseScreenTemperature highest",
     [](T& t) { return show(t.setCloseScreenTemperature(150)); }, "15 00 00 00 00 00 96", "16 01",
     "1"},
    {"setCloseScreenTemperature lowest", [](T& t) { return show(t.setCloseScreenTemperature(0)); },
     "15 00 00 00 00 00 00", "16 01", "1"},
    {"setCloseScreenTemperature above", [](T& t) { return show(t.setCloseScreenTemperature(151)); },
     "", "", "-15", RefusedArgument},
    {"setCloseScreenTemperature below", [](T& t) { return show(t.setCloseScreenTemperature(-1)); },
     "", "", "-15", RefusedArgument},
    {"getCloseScreenTemperature", [](T& t) { return show(t.getCloseScreenTemperature()); }, "29",
     "2A 01 02 03 04 05 F6", "-10"},
    {"getCloseScreenTemperature of six bytes",
     [](T& t) { return show(t.getCloseScreenTemperature()); }, "29", "2A 01 02 03 04 05", "-11",
     BadReply},
    {"getCloseScreenTemperature silent", [](T& t) { return show(t.getCloseScreenTemperature()); },
     "29", "", "-1", NoReply},
    {"solidify", [](T& t) { return show(t.solidify(0xFE)); }, "EF 13 01 FE", "EF 13 01 01", "1"},
    {"solidify refused", [](T& t) { return show(t.solidify(0)); }, "EF 13 01 00", "EF 13 01 02",
     "0", Rejected},
    {"solidify silent", [](T& t) { return show(t.solidify(0)); }, "EF 13 01 00", "", "-1", NoReply},
    {"backups", [](T& t) { return show(t.backups()); }, "EF 11 01 01", "EF 11 01 00 FE", "-2"},
    {"backups short", [](T& t) { return show(t.backups()); }, "EF 11 01 01", "EF 11 01 01", "-1",
     BadReply},
    {"getBackupsTimes", [](T& t) { return info(t.getBackupsTimes()); }, "EF 11 01 00",
     "EF 11 01 01 01 20 0A FF", "1 200AFF"},
    {"getBackupsTimes not made", [](T& t) { return info(t.getBackupsTimes()); }, "EF 11 01 00",
     "EF 11 01 01 02 20", "2 "},
    {"getBackupsTimes short", [](T& t) { return info(t.getBackupsTimes()); }, "EF 11 01 00",
     "EF 11 01 01 01", "-1 ", BadReply},
    {"getBackupsTimes silent", [](T& t) { return info(t.getBackupsTimes()); }, "EF 11 01 00", "",
     "-1 ", NoReply},
    {"setSSHEnabled", [](T& t) { return show(t.setSSHEnabled(true)); }, "EF 10 01 01 01",
     "EF 10 01 01", "1"},
    {"setSSHEnabled off", [](T& t) { return show(t.setSSHEnabled(false)); }, "EF 10 01 01 00",
     "EF 10 01 00", "0", Rejected},
    {"getSSHEnabled", [](T& t) { return show(t.getSSHEnabled()); }, "EF 10 01 00", "EF 10 01 00 07",
     "1"},
    {"getSSHEnabled off", [](T& t) { return show(t.getSSHEnabled()); }, "EF 10 01 00",
     "EF 10 01 00 00", "0"},
    {"getSSHEnabled not told", [](T& t) { return show(t.getSSHEnabled()); }, "EF 10 01 00",
     "EF 10 01 01 01", "-1", Rejected},
    {"getSSHEnabled short", [](T& t) { return show(t.getSSHEnabled()); }, "EF 10 01 00",
     "EF 10 01 00", "-1", BadReply},
    {"getLogZipPath", [](T& t) { return t.getLogZipPath(); }, "EF 0F 01", "EF 0F 01 01 61", "a"},
    {"setSensorInfo", [](T& t) { return show(t.setSensorInfo("")); }, "C8", "C8 01", "1"},
    {"setSensorInfo too long", [](T& t) { return show(t.setSensorInfo(k4096 + "x")); }, "", "",
     "-15", RefusedArgument},
    {"getSensorInfo", [](T& t) { return t.getSensorInfo(); }, "C7", "C7 01 61", "a"},
    {"removeAppPageName", [](T& t) { return show(t.removeAppPageName("a.b")); }, "9F 61 2E 62",
     "9F 01", "1"},
    {"removeAppPageName empty", [](T& t) { return show(t.removeAppPageName("")); }, "", "", "-15",
     RefusedArgument},
    {"removeAppPageName too long",
     [](T& t) { return show(t.removeAppPageName(std::string(257, 'x'))); }, "", "", "-15",
     RefusedArgument},
};

}  // namespace

const std::span<const Call> kMaintenanceCalls = kCalls;

}  // namespace tovi::test
