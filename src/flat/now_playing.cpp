// SPDX-License-Identifier: MIT
// What is playing.
#include "flat/flat_face.h"

#include "flat/call.h"

using namespace tovi::flat;

char* getNowPlayContent(const char* ip, unsigned short port) {
  return report({__func__, ip, port}, &ToviTraffic::getNowPlayContent);
}

char* getNowPlayAllContent(const char* ip, unsigned short port) {
  return report({__func__, ip, port}, &ToviTraffic::getNowPlayAllContent);
}
