// SPDX-License-Identifier: MIT
#include <tovisdk/codec.h>

#include "tests/device/call_table.h"

namespace tovi::test {
namespace {

using T = ToviTraffic;

std::string taken(TimeZoneParam* param) {
  if (param == nullptr) return "null";
  const std::string text = show(std::to_string(param->time), param->zoneId, param->utcOffset);
  deleteObj(&param);
  return text;
}

std::string taken(DeviceNTPParam* param) {
  if (param == nullptr) return "null";
  const std::string text = show(int{param->enabled}, param->server);
  deleteObj(&param);
  return text;
}

const Call kCalls[] = {
    {"setTime",
     [](T& t) {
       std::tm time = getTm(124, 0, 2, 3, 4, 5);
       return show(t.setTime(&time));
     },
     "09 E8 07 01 02 03 04 05", "0A 01", "1"},
    {"setTime null", [](T& t) { return show(t.setTime(nullptr)); }, "", "", "-15", RefusedArgument},
    {"setTimeAndTimeZone",
     [](T& t) {
       return show(t.setTimeAndTimeZone({-17, "A/B", "GMT+08:00"}));
     },
     "95 2D 31 37 2C 41 2F 42 2C 47 4D 54 2B 30 38 3A 30 30", "95 01", "1"},
    {"setTimeAndTimeZone with a space",
     [](T& t) {
       return show(t.setTimeAndTimeZone({1, "A b", "GMT"}));
     },
     "95 31 2C 41", "95 01", "1"},
    {"getTimeAndTimeZone", [](T& t) { return taken(t.getTimeAndTimeZone()); }, "96",
     "96 31 37 30 30 30 30 30 30 30 30 30 30 30 2C 55 54 43 2C 47 4D 54 2C 78",
     "1700000000000 UTC GMT"},
    {"getTimeAndTimeZone no number", [](T& t) { return taken(t.getTimeAndTimeZone()); }, "96",
     "96 78 2C 55 2C 47 00 2C", "0 U G"},
    {"getTimeAndTimeZone of two parts", [](T& t) { return taken(t.getTimeAndTimeZone()); }, "96",
     "96 31 2C 55 54 43", "null", BadReply},
    {"getTimeAndTimeZone empty", [](T& t) { return taken(t.getTimeAndTimeZone()); }, "96", "96",
     "null", BadReply},
    {"getTimeAndTimeZone silent", [](T& t) { return taken(t.getTimeAndTimeZone()); }, "96", "",
     "null", NoReply},
    {"setDeviceNTPParam",
     [](T& t) {
       return show(t.setDeviceNTPParam({false, "n.tp"}));
     },
     "97 00 6E 2E 74 70", "97 01", "1"},
    {"setDeviceNTPParam without server",
     [](T& t) {
       return show(t.setDeviceNTPParam({true, ""}));
     },
     "97 01", "97 01", "1"},
    {"getDeviceNTPParam", [](T& t) { return taken(t.getDeviceNTPParam()); }, "98", "98 01 6E 00 74",
     "1 n"},
    {"getDeviceNTPParam off", [](T& t) { return taken(t.getDeviceNTPParam()); }, "98", "98 02 6E",
     "0 n"},
    {"getDeviceNTPParam of two bytes", [](T& t) { return taken(t.getDeviceNTPParam()); }, "98",
     "98 01", "null", BadReply},
};

}  // namespace

const std::span<const Call> kClockCalls = kCalls;

}  // namespace tovi::test
