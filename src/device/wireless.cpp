// SPDX-License-Identifier: MIT
// Wireless network, mobile network, and radio.
#include "session/operation.h"

using namespace tovi::session;

namespace {

// Digits travel as their values.
std::string shifted(std::string digits, int by) {
  for (char& digit : digits) digit = static_cast<char>(digit + by);
  return digits;
}

}  // namespace

bool ToviTraffic::setWifiState(bool on) {
  return Operation(*this, "setWifiState").set(on) == SUCCESS;
}

int ToviTraffic::getWifiState() { return Operation(*this, "getWifiState").askByte(1); }

std::string ToviTraffic::getWifiList() { return Operation(*this, "getWifiList").askText(); }

int ToviTraffic::connectWifi(const std::string& connection) {
  return Operation(*this, "connectWifi").setText(connection);
}

int ToviTraffic::setWifiApState(bool on) { return Operation(*this, "setWifiApState").set(on); }

int ToviTraffic::getWifiApState() { return Operation(*this, "getWifiApState").askByte(1); }

int ToviTraffic::setWifiApConfig(const std::string& config) {
  return Operation(*this, "setWifiApConfig").setText(config);
}

std::string ToviTraffic::getWifiApConfig() { return Operation(*this, "getWifiApConfig").askText(); }

std::string ToviTraffic::getMobileInfo() { return Operation(*this, "getMobileInfo").askText(); }

std::string ToviTraffic::getSimInfo() { return Operation(*this, "getSimInfo").askText(); }

int ToviTraffic::switchToSoftsim() { return Operation(*this, "switchToSoftsim").confirm(); }

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
  return Operation(*this, "setRDSRoad").set([&] { return shifted(digits, -'0'); });
}

std::string ToviTraffic::getRDSRoad() {
  const auto decode = [](const Reply& reply) { return shifted(std::string(reply.from(0)), '0'); };
  return Operation(*this, "getRDSRoad").ask(atLeast(1), std::string(), decode, 1);
}
