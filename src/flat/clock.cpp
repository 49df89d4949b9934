// The clock.
#include <tovisdk/flat.h>

#include "flat/call.h"
#include "flat/grammar.h"

using namespace tovi::flat;

const char* setTime(const char* ip, unsigned short port, const char* time) {
  return status({__func__, ip, port}, [&](ToviTraffic& session) {
    std::tm fields = parseDateTime(textOf(time));
    return session.setTime(&fields);
  });
}

const char* setTimeAndTimeZone(const char* ip, unsigned short port, int time, const char* zoneId,
                               const char* utcOffset) {
  return status({__func__, ip, port}, [&](ToviTraffic& session) {
    return session.setTimeAndTimeZone({time, textOf(zoneId), textOf(utcOffset)});
  });
}

char* getTimeAndTimeZone(const char* ip, unsigned short port) {
  return report({__func__, ip, port}, &ToviTraffic::getTimeAndTimeZone);
}

const char* setDeviceNTPParam(const char* ip, unsigned short port, unsigned char enabled,
                              const char* server) {
  return status({__func__, ip, port}, [&](ToviTraffic& session) {
    return session.setDeviceNTPParam({enabled != 0, textOf(server)});
  });
}

char* getDeviceNTPParam(const char* ip, unsigned short port) {
  return report({__func__, ip, port}, &ToviTraffic::getDeviceNTPParam);
}
