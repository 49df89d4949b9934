// SPDX-License-Identifier: MIT
// Identity and status.
#include "flat/flat_face.h"

#include "flat/call.h"

using namespace tovi::flat;

const char* setDeviceName(const char* ip, unsigned short port, const char* name) {
  return always({__func__, ip, port}, &ToviTraffic::setDeviceName, name);
}

char* getDeviceName(const char* ip, unsigned short port) {
  return report({__func__, ip, port}, &ToviTraffic::getDeviceName);
}

char* getDeviceVersion(const char* ip, unsigned short port) {
  return report({__func__, ip, port}, &ToviTraffic::getDeviceVersion);
}

char* getSn(const char* ip, unsigned short port) {
  return report({__func__, ip, port}, &ToviTraffic::getSn);
}

char* getMac(const char* ip, unsigned short port) {
  return report({__func__, ip, port}, &ToviTraffic::getMac);
}

char* getDeviceType(const char* ip, unsigned short port) {
  return report({__func__, ip, port}, &ToviTraffic::getDeviceType);
}

char* getDeviceMemorySize(const char* ip, unsigned short port) {
  return report({__func__, ip, port}, &ToviTraffic::getDeviceMemorySize);
}

char* getCpuAndMemoryInfo(const char* ip, unsigned short port) {
  return report({__func__, ip, port}, &ToviTraffic::getCpuAndMemoryInfo);
}

char* getSurveil(const char* ip, unsigned short port) {
  return value({__func__, ip, port}, &ToviTraffic::getSurveil);
}

const char* getSystemInfo(const char* ip, unsigned short port) {
  return notImplemented({__func__, ip, port});
}
