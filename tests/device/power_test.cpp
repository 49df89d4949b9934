// SPDX-License-Identifier: MIT
#include "tests/device/call_table.h"

namespace tovi::test {
namespace {

using T = ToviTraffic;

const Call kCalls[] = {
    {"setPower on", [](T& t) { return show(t.setPower(true)); }, "05 01", "06 01", "1"},
    {"setPower", [](T& t) { return show(t.setPower(false)); }, "05 02", "06 01", "1"},
    {"setBoardPower on", [](T& t) { return show(t.setBoardPower(true)); }, "84 01", "85 01", "1"},
    {"setBoardPower off", [](T& t) { return show(t.setBoardPower(false)); }, "84 02", "85 00",
     "-12", Rejected},
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
    {"getPowerState silent", [](T& t) { return show(t.getPowerState()); }, "EF 14 01", "", "-1",
     NoReply},
    {"getScreenStatus on", [](T& t) { return show(t.getScreenStatus()); }, "BA", "BA 01", "1"},
    {"getScreenStatus off", [](T& t) { return show(t.getScreenStatus()); }, "BA", "BA 00", "2"},
    {"getScreenStatus other", [](T& t) { return show(t.getScreenStatus()); }, "BA", "BA FF 01",
     "2"},
    {"getScreenStatus short", [](T& t) { return show(t.getScreenStatus()); }, "BA", "BA", "-1",
     BadReply},
    {"getScreenStatus silent", [](T& t) { return show(t.getScreenStatus()); }, "BA", "", "-1",
     NoReply},
};

}  // namespace

const std::span<const Call> kPowerCalls = kCalls;

}  // namespace tovi::test
