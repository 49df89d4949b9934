// SPDX-License-Identifier: MIT
// The network.
#include "flat/flat_face.h"

#include "flat/call.h"

using namespace tovi::flat;

const char* setDeviceNetBasicParam(const char* ip, unsigned short port, const char* newIp,
                                   const char* netmask, const char* gateway, int devicePort,
                                   const char* serverIp) {
  const auto use = [devicePort](ToviTraffic& session, const char* own, const char* mask,
                                const char* router, const char* server) {
    session.setDeviceNetBasicParam({own, mask, router, devicePort, server});
  };
  return always({__func__, ip, port}, use, newIp, netmask, gateway, serverIp);
}

const char* resetDeviceIpToDefault(const char* ip, unsigned short port) {
  return always({__func__, ip, port}, &ToviTraffic::resetDeviceIpToDefault);
}

const char* setVirtualConnection(const char* ip, unsigned short port, unsigned char on,
                                 int interval, int value) {
  return status({__func__, ip, port}, &ToviTraffic::setVirtualConnection, on, interval, value);
}

char* getVirtualConnection(const char* ip, unsigned short port) {
  return report({__func__, ip, port}, &ToviTraffic::getVirtualConnection);
}

const char* setPingIp(const char* ip, unsigned short port) {
  return notImplemented({__func__, ip, port});
}
const char* getPingIp(const char* ip, unsigned short port) {
  return notImplemented({__func__, ip, port});
}
const char* setServerIPLists(const char* ip, unsigned short port) {
  return notImplemented({__func__, ip, port});
}
const char* getServerIPLists(const char* ip, unsigned short port) {
  return notImplemented({__func__, ip, port});
}
const char* addWhitelist(const char* ip, unsigned short port) {
  return notImplemented({__func__, ip, port});
}
const char* removeWhitelist(const char* ip, unsigned short port) {
  return notImplemented({__func__, ip, port});
}
const char* getWhitelist(const char* ip, unsigned short port) {
  return notImplemented({__func__, ip, port});
}
