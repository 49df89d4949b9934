// SPDX-License-Identifier: MIT
#include <climits>

#include <tovisdk/codec.h>

#include "tests/device/call_table.h"

namespace tovi::test {

static std::string show(TimeZoneParam* param) {
  return taken(param, [](const TimeZoneParam& p) {
    return show(std::to_string(p.time), p.zoneId, p.utcOffset);
  });
}

static std::string show(DeviceNTPParam* param) {
  return taken(param, [](const DeviceNTPParam& p) { return show(p.enabled, p.server); });
}

static std::tm gTime = getTm(124, 0, 2, 3, 4, 5);
static std::tm gLatest = getTm(INT_MAX, INT_MAX, 2, 3, 4, 5);

const std::vector<Call> kClockCalls = {
    {CALL(setTime(&gTime)), "09 E8 07 01 02 03 04 05", setting("0A")},
    {CALL(setTime(&gLatest)), "09 6B 07 00 02 03 04 05", setting("0A")},
    {CALL(setTime(nullptr)), "", {"-15"}},
    {CALL(setTimeAndTimeZone({-17, "A/B", "GMT+08:00"})), with("95", "-17,A/B,GMT+08:00"),
     setting("95")},
    {CALL(setTimeAndTimeZone({1, "A b", "GMT"})), with("95", "1,A"), setting("95")},
    {CALL(setTimeAndTimeZone({1, "A\tb", "GMT"})), with("95", "1,A"), setting("95")},
    {CALL(setTimeAndTimeZone({1, "A\nb", "GMT"})), with("95", "1,A"), setting("95")},
    {CALL(setTimeAndTimeZone({1, "A", "G\r"})), with("95", "1,A,G"), setting("95")},
    {CALL(getTimeAndTimeZone()), "96",
     answers("null", {{with("96", "1700000000000,UTC,GMT,x"), "1700000000000 UTC GMT"},
                      {with("96", "x,U,G") + " 00 2C", "0 U G"},
                      {with("96", "1,UTC"), "null", BadReply},
                      {"96", "null", BadReply}})},
    {CALL(setDeviceNTPParam({false, "n.tp"})), with("97 00", "n.tp"), setting("97")},
    {CALL(setDeviceNTPParam({true, ""})), "97 01", setting("97")},
    {CALL(getDeviceNTPParam()), "98",
     answers("null",
             {{"98 01 6E 00 74", "true n"}, {"98 02 6E", "false n"}, {"98 01", "null", BadReply}})},
};

}  // namespace tovi::test
