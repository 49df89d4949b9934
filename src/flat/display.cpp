// SPDX-License-Identifier: MIT
// Display and video.
#include "flat/flat_face.h"

#include "flat/call.h"
#include "flat/grammar.h"

using namespace tovi::flat;

const char* setEdidInfo(const char* ip, unsigned short port, const char* info) {
  const auto set = [](ToviTraffic& session, const char* text) {
    return session.setEdidInfo(parseEdidInfo(text));
  };
  return status({__func__, ip, port}, set, info);
}

char* getEdidInfo(const char* ip, unsigned short port) {
  return report({__func__, ip, port}, &ToviTraffic::getEdidInfo);
}

const char* setVideoControlInfo(const char* ip, unsigned short port, int videoSource) {
  return status({__func__, ip, port}, &ToviTraffic::setVideoControlInfo, videoSource);
}

char* getVideoControlInfo(const char* ip, unsigned short port) {
  return report({__func__, ip, port}, &ToviTraffic::getVideoControlInfo);
}

char* getDeviceSize(const char* ip, unsigned short port) {
  return report({__func__, ip, port}, &ToviTraffic::getDeviceSize);
}

char* startScreenPointDetect(const char* ip, unsigned short port) {
  return report({__func__, ip, port}, &ToviTraffic::startScreenPointDetect);
}

char* getDetectErrorPointInfo(const char* ip, unsigned short port) {
  return value({__func__, ip, port},
               [](ToviTraffic& session) { return ended(session.getDetectErrorPointInfo()); });
}

const char* setCustomResolution(const char* ip, unsigned short port) {
  return notImplemented({__func__, ip, port});
}
const char* getCurrentResolution(const char* ip, unsigned short port) {
  return notImplemented({__func__, ip, port});
}
const char* getSupportVideoSource(const char* ip, unsigned short port) {
  return notImplemented({__func__, ip, port});
}
const char* setAntiAliasing(const char* ip, unsigned short port) {
  return notImplemented({__func__, ip, port});
}
const char* getAntiAliasing(const char* ip, unsigned short port) {
  return notImplemented({__func__, ip, port});
}
const char* setSyncPlay(const char* ip, unsigned short port) {
  return notImplemented({__func__, ip, port});
}
const char* getSyncPlay(const char* ip, unsigned short port) {
  return notImplemented({__func__, ip, port});
}
const char* setFont(const char* ip, unsigned short port) {
  return notImplemented({__func__, ip, port});
}
const char* getFontList(const char* ip, unsigned short port) {
  return notImplemented({__func__, ip, port});
}
