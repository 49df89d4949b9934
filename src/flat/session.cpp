// SPDX-License-Identifier: MIT
// Calls that have no effect on later ones.
#include "flat/flat_face.h"

#include "flat/call.h"

using namespace tovi::flat;

const char* setDesKey(const char* ip, unsigned short port, const char* key) {
  return always({__func__, ip, port}, &ToviTraffic::setDesKey, key);
}

const char* setAesKey(const char* ip, unsigned short port, const char* key) {
  return always({__func__, ip, port}, &ToviTraffic::setAesKey, key);
}

const char* clearPassword(const char* ip, unsigned short port) {
  return always({__func__, ip, port}, &ToviTraffic::clearPassword);
}

const char* setTimeout(const char* ip, unsigned short port, int ms) {
  return always({__func__, ip, port}, &ToviTraffic::setTimeout, ms);
}
