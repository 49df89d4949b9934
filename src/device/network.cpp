// Addresses, and the hosts that the controller knows.
#include <tovisdk/codec.h>

#include <algorithm>

#include "session/operation.h"

using namespace tovi;
using namespace tovi::session;

namespace {

constexpr int kNetBasicSize = 26;
constexpr int kShortestInterval = 60;

}  // namespace

void ToviTraffic::setDeviceNetBasicParam(DeviceNetBasicParam param) {
  std::string payload(kNetBasicSize, '\0');
  normalIntToBytes(payload.data(), 0, ipToInt(param.ip));
  normalIntToBytes(payload.data(), 4, ipToInt(param.netmask));
  normalIntToBytes(payload.data(), 8, ipToInt(param.gateway));
  shortToBytes(payload.data(), 12, static_cast<short>(param.port));
  normalIntToBytes(payload.data(), 14, ipToInt(param.serverIp));
  Operation(*this, "setDeviceNetBasicParam").set(payload);
}

void ToviTraffic::resetDeviceIpToDefault() { Operation(*this, "resetDeviceIpToDefault").set(); }

int ToviTraffic::setVirtualConnection(bool on, int interval, int value) {
  return Operation(*this, "setVirtualConnection")
      .set(bytes({on}) + lowFirst(std::max(interval, kShortestInterval)) + bytes({value}));
}

VirtualParam ToviTraffic::getVirtualConnection() {
  const Reply reply = Operation(*this, "getVirtualConnection").ask(atLeast(5));
  VirtualParam param;
  if (reply) param = {reply.isOne(1), reply.unsignedShort(2), reply.unsignedByte(4)};
  return param;
}

int ToviTraffic::setPingIp(const std::string& address) {
  return Operation(*this, "setPingIp").askFlag(address);
}

std::string ToviTraffic::getPingIp() { return Operation(*this, "getPingIp").askText(); }

int ToviTraffic::setServerIPLists(const std::string& lists) {
  return Operation(*this, "setServerIPLists").askFlag(lists);
}

std::string ToviTraffic::getServerIPLists() {
  return Operation(*this, "getServerIPLists").askText();
}

int ToviTraffic::addWhitelist(const std::string& entry) {
  return Operation(*this, "addWhitelist").askFlag(entry);
}

int ToviTraffic::removeWhitelist(const std::string& entry) {
  return Operation(*this, "removeWhitelist").askFlag(entry);
}

std::string ToviTraffic::getWhitelist() { return Operation(*this, "getWhitelist").askText(); }
