// SPDX-License-Identifier: MIT
// Updates.
#include "flat/flat_face.h"

#include "flat/call.h"

using namespace tovi::flat;

const char* sendLocalUpdate(const char* ip, unsigned short port, int type, const char* text) {
  return status({__func__, ip, port}, &ToviTraffic::sendLocalUpdate, type, text);
}

const char* removeLocalUpdate(const char* ip, unsigned short port, int type) {
  return status({__func__, ip, port}, &ToviTraffic::removeLocalUpdate, type);
}

const char* sendFtpDownloadaddress(const char* ip, unsigned short port, const char* address) {
  return status({__func__, ip, port}, &ToviTraffic::sendFtpDownloadaddress, address);
}

const char* updateFileName(const char* ip, unsigned short port, const char* name) {
  return status({__func__, ip, port}, &ToviTraffic::updateFileName, name);
}

const char* downloadFiles(const char* ip, unsigned short port) {
  return notImplemented({__func__, ip, port});
}
