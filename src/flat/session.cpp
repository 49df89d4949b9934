// Calls that have no effect on later ones.
#include <tovisdk/flat.h>

#include "flat/call.h"

using namespace tovi::flat;

const char* setDesKey(const char* ip, unsigned short port, const char* key) {
  return always({__func__, ip, port}, &ToviTraffic::setDesKey, textOf(key));
}

const char* setAesKey(const char* ip, unsigned short port, const char* key) {
  return always({__func__, ip, port}, &ToviTraffic::setAesKey, textOf(key));
}

const char* clearPassword(const char* ip, unsigned short port) {
  return always({__func__, ip, port}, &ToviTraffic::clearPassword);
}

const char* setTimeout(const char* ip, unsigned short port, int ms) {
  return always({__func__, ip, port}, &ToviTraffic::setTimeout, ms);
}
