// SPDX-License-Identifier: MIT
// Addresses, and the hosts that the controller knows.
#include <tovisdk/codec.h>

#include <algorithm>

#include "session/operation.h"

using namespace tovi;
using namespace tovi::session;

namespace {

constexpr int kShortestInterval = 60;

// The first field in front.
std::string addressOf(const std::string& dotted) {
  char address[4];
  normalIntToBytes(address, 0, ipToInt(dotted));
  return {address, sizeof address};
}

std::string encode(const DeviceNetBasicParam& param) {
  constexpr std::size_t kSize = 26;
  std::string payload = addressOf(param.ip) + addressOf(param.netmask) + addressOf(param.gateway) +
                        lowFirst(param.port) + addressOf(param.serverIp);
  payload.resize(kSize);
  return payload;
}

}  // namespace

void ToviTraffic::setDeviceNetBasicParam(DeviceNetBasicParam param) {
  Operation(*this, "setDeviceNetBasicParam").set([&] { return encode(param); });
}

void ToviTraffic::resetDeviceIpToDefault() { Operation(*this, "resetDeviceIpToDefault").set(); }

int ToviTraffic::setVirtualConnection(bool on, int interval, int value) {
  return Operation(*this, "setVirtualConnection")
      .set(on, lowFirst(std::max(interval, kShortestInterval)), value);
}

VirtualParam ToviTraffic::getVirtualConnection() {
  return Operation(*this, "getVirtualConnection")
      .ask(atLeast(5), VirtualParam(), [](const Reply& reply) {
        return VirtualParam{reply.isOne(1), reply.unsignedShort(2), reply.unsignedByte(4)};
      });
}

int ToviTraffic::setPingIp(const std::string& address) {
  return Operation(*this, "setPingIp").confirm(address);
}

std::string ToviTraffic::getPingIp() { return Operation(*this, "getPingIp").askText(); }

int ToviTraffic::setServerIPLists(const std::string& lists) {
  return Operation(*this, "setServerIPLists").confirm(lists);
}

std::string ToviTraffic::getServerIPLists() {
  return Operation(*this, "getServerIPLists").askText();
}

int ToviTraffic::addWhitelist(const std::string& entry) {
  return Operation(*this, "addWhitelist").confirm(entry);
}

int ToviTraffic::removeWhitelist(const std::string& entry) {
  return Operation(*this, "removeWhitelist").confirm(entry);
}

std::string ToviTraffic::getWhitelist() { return Operation(*this, "getWhitelist").askText(); }
