// The clock, its time zone and its synchronisation.
#include <tovisdk/text.h>

#include "session/operation.h"

using namespace tovi;
using namespace tovi::session;

int ToviTraffic::setTime(std::tm* time) {
  Operation operation(*this, "setTime");
  if (time == nullptr) return operation.refuse("the time is null");
  return operation.set(
      lowFirst(time->tm_year + 1900) +
      bytes({time->tm_mon + 1, time->tm_mday, time->tm_hour, time->tm_min, time->tm_sec}));
}

int ToviTraffic::setTimeAndTimeZone(TimeZoneParam param) {
  // Controllers take what stands before the first white space.
  const std::string text = std::to_string(param.time) + "," + param.zoneId + "," + param.utcOffset;
  return Operation(*this, "setTimeAndTimeZone")
      .set(text.substr(0, text.find_first_of(" \t\n\v\f\r")));
}

TimeZoneParam* ToviTraffic::getTimeAndTimeZone() {
  Operation operation(*this, "getTimeAndTimeZone");
  const Reply reply = operation.ask(atLeast(1));
  if (!reply) return nullptr;
  const std::vector<std::string> parts = split(reply.text(1), ",");
  if (parts.size() < 3) return operation.end(ToviOutcome::BadReply, nullptr);
  return new TimeZoneParam{toviStoll(parts[0]), parts[1], parts[2]};
}

int ToviTraffic::setDeviceNTPParam(DeviceNTPParam param) {
  return Operation(*this, "setDeviceNTPParam").set(bytes({param.enabled}) + param.server);
}

DeviceNTPParam* ToviTraffic::getDeviceNTPParam() {
  const Reply reply = Operation(*this, "getDeviceNTPParam").ask(atLeast(3));
  return reply ? new DeviceNTPParam{reply.isOne(1), reply.text(2)} : nullptr;
}
