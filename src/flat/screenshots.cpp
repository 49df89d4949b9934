// SPDX-License-Identifier: MIT
// Screenshots.
#include "flat/flat_face.h"

#include "flat/call.h"

using namespace tovi::flat;

const char* getDeviceScreenshot(const char* ip, unsigned short port, const char* path) {
  return status({__func__, ip, port}, &ToviTraffic::getDeviceScreenshot, path);
}
