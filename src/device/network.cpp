// Wireless, addresses, and what hangs on the controller's other ports.
#include <tovisdk/codec.h>
#include <tovisdk/tovi_traffic.h>

#include <algorithm>

#include "device/operation.h"

using tovi::device::atLeast;
using tovi::device::bytes;
using tovi::device::Operation;
using tovi::device::Reply;
using tovi::wire::command;

namespace {

// The controller's room for texts, in bytes.
constexpr std::size_t kNetworkText = 1024;
constexpr std::size_t kSensorText = 4096;
constexpr std::size_t kPackageName = 256;

constexpr int kNetBasicSize = 26;
constexpr int kShortestInterval = 60;

}  // namespace

bool ToviTraffic::setWifiState(bool on) {
  return Operation(*this, command("setWifiState")).set(bytes({on})) == SUCCESS;
}

int ToviTraffic::getWifiState() { return Operation(*this, command("getWifiState")).askByte(1, -1); }

int ToviTraffic::setWifiApState(bool on) {
  return Operation(*this, command("setWifiApState")).set(bytes({on}));
}

int ToviTraffic::getWifiApState() {
  return Operation(*this, command("getWifiApState")).askByte(1, -1);
}

int ToviTraffic::connectWifi(const std::string& connection) {
  return Operation(*this, command("connectWifi")).setText(connection, kNetworkText);
}

int ToviTraffic::setWifiApConfig(const std::string& config) {
  return Operation(*this, command("setWifiApConfig")).setText(config, kNetworkText);
}

int ToviTraffic::setLoraInfo(const std::string& info) {
  return Operation(*this, command("setLoraInfo")).setText(info, kSensorText);
}

int ToviTraffic::setSensorInfo(const std::string& info) {
  return Operation(*this, command("setSensorInfo")).setText(info, kSensorText);
}

int ToviTraffic::removeAppPageName(const std::string& package) {
  Operation operation(*this, command("removeAppPageName"));
  return package.empty() ? operation.refuse("the name is empty")
                         : operation.setText(package, kPackageName);
}

int ToviTraffic::setPingIp(const std::string& address) {
  return Operation(*this, command("setPingIp")).askFlag(address);
}

int ToviTraffic::addWhitelist(const std::string& entry) {
  return Operation(*this, command("addWhitelist")).askFlag(entry);
}

int ToviTraffic::removeWhitelist(const std::string& entry) {
  return Operation(*this, command("removeWhitelist")).askFlag(entry);
}

int ToviTraffic::setServerIPLists(const std::string& lists) {
  return Operation(*this, command("setServerIPLists")).askFlag(lists);
}

int ToviTraffic::switchToSoftsim() {
  return Operation(*this, command("switchToSoftsim")).askFlag();
}

void ToviTraffic::setDeviceNetBasicParam(DeviceNetBasicParam param) {
  std::string payload(kNetBasicSize, '\0');
  normalIntToBytes(payload.data(), 0, ipToInt(param.ip));
  normalIntToBytes(payload.data(), 4, ipToInt(param.netmask));
  normalIntToBytes(payload.data(), 8, ipToInt(param.gateway));
  shortToBytes(payload.data(), 12, static_cast<short>(param.port));
  normalIntToBytes(payload.data(), 14, ipToInt(param.serverIp));
  Operation(*this, command("setDeviceNetBasicParam")).set(payload);
}

void ToviTraffic::resetDeviceIpToDefault() {
  Operation(*this, command("resetDeviceIpToDefault")).set();
}

int ToviTraffic::setVirtualConnection(bool on, int interval, int value) {
  std::string payload = bytes({on, 0, 0, value});
  shortToBytes(payload.data(), 1, static_cast<short>(std::max(interval, kShortestInterval)));
  return Operation(*this, command("setVirtualConnection")).set(payload);
}

VirtualParam ToviTraffic::getVirtualConnection() {
  const Reply reply = Operation(*this, command("getVirtualConnection")).ask(atLeast(5));
  VirtualParam param;
  if (reply) param = {reply.isOne(1), reply.unsignedShort(2), reply.unsignedByte(4)};
  return param;
}

int ToviTraffic::setRDSRoad(const std::string& digits) {
  std::string values = digits;
  for (char& digit : values) digit = static_cast<char>(digit - '0');
  return Operation(*this, command("setRDSRoad")).set(values);
}

std::string ToviTraffic::getRDSRoad() {
  const Reply reply = Operation(*this, command("getRDSRoad")).ask(atLeast(1), bytes({1}));
  std::string digits;
  for (int n = 0; n < reply.size(); ++n) digits += static_cast<char>(reply.unsignedByte(n) + '0');
  return digits;
}
