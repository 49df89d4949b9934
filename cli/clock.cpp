// SPDX-License-Identifier: MIT
// The clock, its time zone and its synchronisation.
#include <ctime>
#include <optional>

#include "cli/themes.h"
#include "cli/times.h"
#include "platform/system.h"

namespace tovi::cli {
namespace {

// A calendar time; without one, "now" was given.
using Moment = std::optional<std::tm>;

Argument<Moment> moment(const std::string& help, const std::string& ending) {
  return argument("TIME", help, [ending](const std::string& given) {
    if (given == "now") return Moment();
    Moment time;
    if (given.ends_with(ending)) time = parseTime(given.substr(0, given.size() - ending.size()));
    if (!time) {
      throw Unusable(quoted(given) + " is neither now nor a time as in 2024-03-01T08:00:00" +
                     ending);
    }
    return time;
  });
}

// Zone and time travel as one text, in which white space and commas part them.
Argument<std::string> word(const std::string& name, const std::string& help) {
  return argument(name, help, [](const std::string& given) {
    if (given.empty() || given.find_first_of(" \t\n\v\f\r,") != std::string::npos) {
      throw Unusable(quoted(given) + " is not one word without commas");
    }
    return given;
  });
}

Result setTime(Call& call, const Moment& moment) {
  std::tm time = moment ? *moment : platform::localTime(platform::now());
  return ofCode(call.traffic, call.traffic.setTime(&time));
}

Result setTimeAndZone(Call& call, const Moment& moment, const std::string& zone,
                      const std::string& offset) {
  const long long time = moment ? utcMilliseconds(*moment) : platform::now() * 1000LL;
  return ofCode(call.traffic, call.traffic.setTimeAndTimeZone({time, zone, offset}));
}

Json shown(const TimeZoneParam& param) {
  return {{"time", utcText(param.time)}, {"zoneId", param.zoneId}, {"utcOffset", param.utcOffset}};
}

Result setTimeServer(Call& call, bool enabled, const std::string& server) {
  return ofCode(call.traffic, call.traffic.setDeviceNTPParam({enabled, server}));
}

Json shown(const DeviceNTPParam& param) {
  return {{"enabled", param.enabled}, {"server", param.server}};
}

}  // namespace

void addClock(Commands& commands) {
  commands.group("Clock");
  commands.add("setTime", "Set the clock", setTime,
               moment("As in 2024-03-01T08:00:00; now is this machine's local time", ""));
  commands.add("setTimeAndTimeZone", "Set clock and time zone", setTimeAndZone,
               moment("In UTC, as in 2024-03-01T00:00:00Z; or now", "Z"),
               word("ZONE", "As in Asia/Shanghai"), word("OFFSET", "As in GMT+08:00"));
  commands.add("getTimeAndTimeZone", "Read the clock (in UTC) and the time zone",
               asks(&ToviTraffic::getTimeAndTimeZone, shown));
  commands.add("setDeviceNTPParam", "Set time synchronisation", setTimeServer, onOff("STATE"),
               text("SERVER", "Host name or address"));
  commands.add("getDeviceNTPParam", "Read time synchronisation",
               asks(&ToviTraffic::getDeviceNTPParam, shown));
}

}  // namespace tovi::cli
