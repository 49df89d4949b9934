// SPDX-License-Identifier: MIT
// Brightness and volume.
#include "flat/flat_face.h"

#include "flat/call.h"
#include "flat/grammar.h"

using namespace tovi::flat;

const char* setBrightness(const char* ip, unsigned short port, int level) {
  return status({__func__, ip, port}, &ToviTraffic::setBrightness, level);
}

char* getBrightnessInfo(const char* ip, unsigned short port) {
  return report({__func__, ip, port}, &ToviTraffic::getBrightnessInfo);
}

const char* setBrightnessAuto(const char* ip, unsigned short port, const char* points) {
  const auto set = [](ToviTraffic& session, const char* text) {
    BrightnessItem curve = parseCurve(text);
    return session.setBrightnessAuto(&curve);
  };
  return status({__func__, ip, port}, set, points);
}

char* getBrightnessAuto(const char* ip, unsigned short port) {
  return report({__func__, ip, port}, &ToviTraffic::getBrightnessAuto);
}

const char* setAutoBrightnessTimeParam(const char* ip, unsigned short port, char first,
                                       char second) {
  return status({__func__, ip, port}, &ToviTraffic::setAutoBrightnessTimeParam, first, second);
}

const char* setDeviceVolume(const char* ip, unsigned short port, int volume) {
  return status({__func__, ip, port}, &ToviTraffic::setDeviceVolume, volume);
}

// A byte is signed here, so 255 reads -1.
char* getVolumeValue(const char* ip, unsigned short port) {
  return value({__func__, ip, port}, [](ToviTraffic& session) {
    return std::to_string(static_cast<signed char>(session.getVolumeValue()));
  });
}
