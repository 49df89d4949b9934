// SPDX-License-Identifier: MIT
// The clock.
#include "flat/flat_face.h"

#include "flat/call.h"
#include "flat/grammar.h"

using namespace tovi::flat;

const char* setTime(const char* ip, unsigned short port, const char* time) {
  const auto set = [](ToviTraffic& session, const char* text) {
    std::tm fields = parseDateTime(text);
    return session.setTime(&fields);
  };
  return status({__func__, ip, port}, set, time);
}

const char* setTimeAndTimeZone(const char* ip, unsigned short port, int time, const char* zoneId,
                               const char* utcOffset) {
  const auto set = [time](ToviTraffic& session, const char* zone, const char* offset) {
    return session.setTimeAndTimeZone({time, zone, offset});
  };
  return status({__func__, ip, port}, set, zoneId, utcOffset);
}

char* getTimeAndTimeZone(const char* ip, unsigned short port) {
  return report({__func__, ip, port}, &ToviTraffic::getTimeAndTimeZone);
}

const char* setDeviceNTPParam(const char* ip, unsigned short port, unsigned char enabled,
                              const char* server) {
  const auto set = [enabled](ToviTraffic& session, const char* name) {
    return session.setDeviceNTPParam({enabled != 0, name});
  };
  return status({__func__, ip, port}, set, server);
}

char* getDeviceNTPParam(const char* ip, unsigned short port) {
  return report({__func__, ip, port}, &ToviTraffic::getDeviceNTPParam);
}
