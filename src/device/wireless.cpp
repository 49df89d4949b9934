// Wireless network, mobile network, and radio.
#include "session/operation.h"

using namespace tovi;
using namespace tovi::session;

bool ToviTraffic::setWifiState(bool on) {
  return Operation(*this, "setWifiState").set(bytes({on})) == SUCCESS;
}

int ToviTraffic::getWifiState() { return Operation(*this, "getWifiState").askByte(1); }

std::string ToviTraffic::getWifiList() { return Operation(*this, "getWifiList").askText(); }

int ToviTraffic::connectWifi(const std::string& connection) {
  return Operation(*this, "connectWifi").setText(connection);
}

int ToviTraffic::setWifiApState(bool on) {
  return Operation(*this, "setWifiApState").set(bytes({on}));
}

int ToviTraffic::getWifiApState() { return Operation(*this, "getWifiApState").askByte(1); }

int ToviTraffic::setWifiApConfig(const std::string& config) {
  return Operation(*this, "setWifiApConfig").setText(config);
}

std::string ToviTraffic::getWifiApConfig() { return Operation(*this, "getWifiApConfig").askText(); }

std::string ToviTraffic::getMobileInfo() { return Operation(*this, "getMobileInfo").askText(); }

std::string ToviTraffic::getSimInfo() { return Operation(*this, "getSimInfo").askText(); }

int ToviTraffic::switchToSoftsim() { return Operation(*this, "switchToSoftsim").askFlag(); }

int ToviTraffic::setLoraInfo(const std::string& info) {
  return Operation(*this, "setLoraInfo").setText(info);
}

ResultParam ToviTraffic::getLoraInfo() {
  Operation operation(*this, "getLoraInfo");
  ResultParam info;
  info.text = operation.askText();
  info.result = operation.outcome() == ToviOutcome::Done ? 1 : 0;
  return info;
}

int ToviTraffic::setRDSRoad(const std::string& digits) {
  std::string values = digits;
  for (char& digit : values) digit = static_cast<char>(digit - '0');
  return Operation(*this, "setRDSRoad").set(values);
}

std::string ToviTraffic::getRDSRoad() {
  const Reply reply = Operation(*this, "getRDSRoad").ask(atLeast(1), bytes({1}));
  std::string digits;
  for (int n = 0; n < reply.size(); ++n) digits += static_cast<char>(reply.unsignedByte(n) + '0');
  return digits;
}
