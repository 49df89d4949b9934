// SPDX-License-Identifier: MIT
#include "tests/device/call_table.h"

namespace tovi::test {
namespace {

using T = ToviTraffic;

const std::string k16 = "0123456789abcdef";

const Call kCalls[] = {
    {"getIsSecret", [](T& t) { return show(t.getIsSecret()); }, "EF 0C 01", "EF 0C 01 01", "1"},
    {"getIsSecret not", [](T& t) { return show(t.getIsSecret()); }, "EF 0C 01", "EF 0C 01 00", "0"},
    {"getIsSecret silent", [](T& t) { return show(t.getIsSecret()); }, "EF 0C 01", "", "-1",
     NoReply},
    {"getIsSecret with a key",
     [](T& t) {
       t.setSM4Key("12345678");
       return show(t.getIsSecret());
     },
     "EF 0C 01", "EF 0C 01 01", "1"},
    {"setDeviceKey", [](T& t) { return show(t.setDeviceKey("k")); }, "EF 03 01 6B", "EF 03 01 01",
     "true"},
    {"setDeviceKey refused", [](T& t) { return show(t.setDeviceKey("")); }, "EF 03 01",
     "EF 03 01 00", "false", Rejected},
    {"setDeviceKey silent", [](T& t) { return show(t.setDeviceKey("k")); }, "EF 03 01 6B", "",
     "false", NoReply},
    {"setDeviceSecretParam longest label, no key",
     [](T& t) {
       return show(t.setDeviceSecretParam({k16, 0, true, "x", "y"}, false));
     },
     "70 00 01 30 31 32 33 34 35 36 37 38 39 61 62 63 64 65 66 91 21", "71 01", "1"},
    {"setDeviceSecretParam with its key",
     [](T& t) {
       return show(t.setDeviceSecretParam({"l", 0x101, false, "12345678", ""}, false));
     },
     "70 01 00 6C 91 21 31 32 33 34 35 36 37 38", "71 00", "-12", Rejected},
    {"setDeviceSecretParam with both keys, plain whatever key is set",
     [](T& t) {
       t.setDesKey("12345678");
       return show(t.setDeviceSecretParam({"l", 2, true, "12345678", "abcdefgh"}, true));
     },
     "70 02 01 6C 91 21 31 32 33 34 35 36 37 38 91 21 61 62 63 64 65 66 67 68", "71 01", "1"},
    {"setDeviceSecretParam with the second key alone",
     [](T& t) {
       return show(t.setDeviceSecretParam({"l", 0, true, "", "abcdefgh"}, true));
     },
     "70 00 01 6C 91 21 91 21 61 62 63 64 65 66 67 68", "71 01", "1"},
    {"setDeviceSecretParam without label",
     [](T& t) {
       return show(t.setDeviceSecretParam({"", 0, true, "", ""}, false));
     },
     "", "", "-15", RefusedArgument},
    {"setDeviceSecretParam label too long",
     [](T& t) {
       return show(t.setDeviceSecretParam({k16 + "g", 0, true, "", ""}, false));
     },
     "", "", "-15", RefusedArgument},
    {"setDeviceSecretParam short key",
     [](T& t) {
       return show(t.setDeviceSecretParam({"l", 1, true, "1234567", ""}, false));
     },
     "", "", "-15", RefusedArgument},
    {"setDeviceSecretParam long second key",
     [](T& t) {
       return show(t.setDeviceSecretParam({"l", 0, true, "", "abcdefghi"}, true));
     },
     "", "", "-15", RefusedArgument},
};

}  // namespace

const std::span<const Call> kSecureModeCalls = kCalls;

}  // namespace tovi::test
