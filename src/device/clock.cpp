// The clock, its time zone and its synchronisation.
#include <tovisdk/codec.h>
#include <tovisdk/text.h>
#include <tovisdk/tovi_traffic.h>

#include "device/operation.h"

using tovi::device::atLeast;
using tovi::device::bytes;
using tovi::device::Operation;
using tovi::device::Reply;
using tovi::wire::command;

int ToviTraffic::setTime(std::tm* time) {
  Operation operation(*this, command("setTime"));
  if (time == nullptr) return operation.refuse("the time is null");
  std::string payload =
      bytes({0, 0, time->tm_mon + 1, time->tm_mday, time->tm_hour, time->tm_min, time->tm_sec});
  shortToBytes(payload.data(), 0, static_cast<short>(time->tm_year + 1900));
  return operation.set(payload);
}

int ToviTraffic::setTimeAndTimeZone(TimeZoneParam param) {
  // Controllers take what stands before the first white space.
  const std::string text = std::to_string(param.time) + "," + param.zoneId + "," + param.utcOffset;
  return Operation(*this, command("setTimeAndTimeZone"))
      .set(text.substr(0, text.find_first_of(" \t\n\v\f\r")));
}

TimeZoneParam* ToviTraffic::getTimeAndTimeZone() {
  const Reply reply = Operation(*this, command("getTimeAndTimeZone")).ask(atLeast(1));
  if (!reply) return nullptr;
  const std::vector<std::string> parts = split(reply.text(1), ",");
  if (parts.size() < 3) {
    mOutcome = ToviOutcome::BadReply;
    return nullptr;
  }
  return new TimeZoneParam{toviStoll(parts[0]), parts[1], parts[2]};
}

int ToviTraffic::setDeviceNTPParam(DeviceNTPParam param) {
  return Operation(*this, command("setDeviceNTPParam")).set(bytes({param.enabled}) + param.server);
}

DeviceNTPParam* ToviTraffic::getDeviceNTPParam() {
  const Reply reply = Operation(*this, command("getDeviceNTPParam")).ask(atLeast(3));
  return reply ? new DeviceNTPParam{reply.isOne(1), reply.text(2)} : nullptr;
}
