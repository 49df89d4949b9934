// Secure mode.
#include <tovisdk/flat.h>

#include "flat/call.h"
#include "flat/grammar.h"

using namespace tovi::flat;

const char* setDeviceKey(const char* ip, unsigned short port, const char* key) {
  return always({__func__, ip, port}, &ToviTraffic::setDeviceKey, textOf(key));
}

const char* setDeviceSecretParam(const char* ip, unsigned short port, const char* param,
                                 bool includeSecondKey) {
  return status({__func__, ip, port}, [&](ToviTraffic& session) {
    return session.setDeviceSecretParam(parseSecretParam(param), includeSecondKey);
  });
}

const char* getIsSecret(const char* ip, unsigned short port) {
  return notImplemented({__func__, ip, port});
}
