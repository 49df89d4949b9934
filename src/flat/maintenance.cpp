// SPDX-License-Identifier: MIT
// Maintenance.
#include "flat/flat_face.h"

#include "flat/call.h"
#include "flat/labels.h"

using namespace tovi::flat;

const char* restartDevice(const char* ip, unsigned short port) {
  return status({__func__, ip, port}, &ToviTraffic::restartDevice);
}

const char* sendHeartBeat(const char* ip, unsigned short port) {
  return always({__func__, ip, port}, &ToviTraffic::sendHeartBeat);
}

const char* setCloseScreenTemperature(const char* ip, unsigned short port, int temperature) {
  return status({__func__, ip, port}, &ToviTraffic::setCloseScreenTemperature, temperature);
}

char* getCloseScreenTemperature(const char* ip, unsigned short port) {
  return value({__func__, ip, port}, [](ToviTraffic& session) {
    return label::kCloseTemperature + std::to_string(session.getCloseScreenTemperature());
  });
}

const char* removeAppPageName(const char* ip, unsigned short port, const char* package) {
  return status({__func__, ip, port}, &ToviTraffic::removeAppPageName, package);
}

const char* setSSHEnabled(const char* ip, unsigned short port) {
  return notImplemented({__func__, ip, port});
}
const char* getSSHEnabled(const char* ip, unsigned short port) {
  return notImplemented({__func__, ip, port});
}
const char* getLogZipPath(const char* ip, unsigned short port) {
  return notImplemented({__func__, ip, port});
}
const char* setSensorInfo(const char* ip, unsigned short port) {
  return notImplemented({__func__, ip, port});
}
const char* getSensorInfo(const char* ip, unsigned short port) {
  return notImplemented({__func__, ip, port});
}
