// SPDX-License-Identifier: MIT
// Wireless and mobile.
#include "flat/flat_face.h"

#include "flat/call.h"

using namespace tovi::flat;

const char* setWifiState(const char* ip, unsigned short port) {
  return notImplemented({__func__, ip, port});
}
const char* getWifiState(const char* ip, unsigned short port) {
  return notImplemented({__func__, ip, port});
}
const char* getWifiList(const char* ip, unsigned short port) {
  return notImplemented({__func__, ip, port});
}
const char* connectWifi(const char* ip, unsigned short port) {
  return notImplemented({__func__, ip, port});
}
const char* setWifiApState(const char* ip, unsigned short port) {
  return notImplemented({__func__, ip, port});
}
const char* getWifiApState(const char* ip, unsigned short port) {
  return notImplemented({__func__, ip, port});
}
const char* setWifiApConfig(const char* ip, unsigned short port) {
  return notImplemented({__func__, ip, port});
}
const char* getWifiApConfig(const char* ip, unsigned short port) {
  return notImplemented({__func__, ip, port});
}
const char* getMobileInfo(const char* ip, unsigned short port) {
  return notImplemented({__func__, ip, port});
}
const char* getSimInfo(const char* ip, unsigned short port) {
  return notImplemented({__func__, ip, port});
}
const char* switchToSoftsim(const char* ip, unsigned short port) {
  return notImplemented({__func__, ip, port});
}
const char* setLoraInfo(const char* ip, unsigned short port) {
  return notImplemented({__func__, ip, port});
}
const char* getLoraInfo(const char* ip, unsigned short port) {
  return notImplemented({__func__, ip, port});
}
