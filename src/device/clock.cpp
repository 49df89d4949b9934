// SPDX-License-Identifier: MIT
// The clock, its time zone and its synchronisation.
#include "foundation/text.h"
#include "session/operation.h"

using namespace tovi;
using namespace tovi::session;

namespace {

// Sums past the ends of int wrap, as the two bytes that are sent do anyway.
constexpr int plus(int number, unsigned more) {
  return static_cast<int>(static_cast<unsigned>(number) + more);
}

// Controllers take what stands before the first white space.
std::string encode(const TimeZoneParam& param) {
  const std::string text = std::to_string(param.time) + "," + param.zoneId + "," + param.utcOffset;
  return text.substr(0, text.find_first_of(" \t\n\v\f\r"));
}

}  // namespace

int ToviTraffic::setTime(std::tm* time) {
  Operation operation(*this, "setTime");
  if (time == nullptr) return operation.refuse("the time is null");
  return operation.set(lowFirst(plus(time->tm_year, 1900)), plus(time->tm_mon, 1), time->tm_mday,
                       time->tm_hour, time->tm_min, time->tm_sec);
}

int ToviTraffic::setTimeAndTimeZone(TimeZoneParam param) {
  return Operation(*this, "setTimeAndTimeZone").set([&] { return encode(param); });
}

TimeZoneParam* ToviTraffic::getTimeAndTimeZone() {
  Operation operation(*this, "getTimeAndTimeZone");
  TimeZoneParam* const none = nullptr;
  return operation.ask(atLeast(1), none, [&](const Reply& reply) {
    const std::vector<std::string> parts = fieldsOf(reply.text(1), ",");
    if (parts.size() < 3) return operation.end(ToviOutcome::BadReply, none);
    return new TimeZoneParam{leadingNumber(parts[0]), parts[1], parts[2]};
  });
}

int ToviTraffic::setDeviceNTPParam(DeviceNTPParam param) {
  return Operation(*this, "setDeviceNTPParam").set(param.enabled, param.server);
}

DeviceNTPParam* ToviTraffic::getDeviceNTPParam() {
  DeviceNTPParam* const none = nullptr;
  return Operation(*this, "getDeviceNTPParam").ask(atLeast(3), none, [](const Reply& reply) {
    return new DeviceNTPParam{reply.isOne(1), reply.text(2)};
  });
}
