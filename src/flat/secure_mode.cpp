// SPDX-License-Identifier: MIT
// Secure mode.
#include "flat/flat_face.h"

#include "flat/call.h"
#include "flat/grammar.h"

using namespace tovi::flat;

const char* setDeviceKey(const char* ip, unsigned short port, const char* key) {
  return always({__func__, ip, port}, &ToviTraffic::setDeviceKey, key);
}

const char* setDeviceSecretParam(const char* ip, unsigned short port, const char* param,
                                 unsigned char includeSecondKey) {
  const auto set = [includeSecondKey](ToviTraffic& session, const char* text) {
    return session.setDeviceSecretParam(parseSecretParam(text), includeSecondKey != 0);
  };
  return status({__func__, ip, port}, set, param);
}

const char* getIsSecret(const char* ip, unsigned short port) {
  return notImplemented({__func__, ip, port});
}
