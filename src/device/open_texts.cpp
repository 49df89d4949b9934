// Queries whose answer is a text that only the host understands.
#include <tovisdk/tovi_traffic.h>

#include "device/operation.h"

using tovi::device::bytes;
using tovi::device::Operation;
using tovi::wire::command;

std::string ToviTraffic::getSurveil() { return Operation(*this, command("getSurveil")).askText(); }

std::string ToviTraffic::getSystemInfo() {
  return Operation(*this, command("getSystemInfo")).askText();
}

std::string ToviTraffic::getSensorInfo() {
  return Operation(*this, command("getSensorInfo")).askText();
}

std::string ToviTraffic::getMobileInfo() {
  return Operation(*this, command("getMobileInfo")).askText();
}

std::string ToviTraffic::getWifiList() {
  return Operation(*this, command("getWifiList")).askText();
}

std::string ToviTraffic::getWifiApConfig() {
  return Operation(*this, command("getWifiApConfig")).askText();
}

std::string ToviTraffic::getFontList() {
  return Operation(*this, command("getFontList")).askText();
}

std::string ToviTraffic::getSupportVideoSource() {
  return Operation(*this, command("getSupportVideoSource")).askText();
}

std::string ToviTraffic::getAdvanceTiming() {
  return Operation(*this, command("getAdvanceTiming")).askText(bytes({1}));
}

std::string ToviTraffic::getPingIp() { return Operation(*this, command("getPingIp")).askText(); }

std::string ToviTraffic::getSimInfo() { return Operation(*this, command("getSimInfo")).askText(); }

std::string ToviTraffic::getWhitelist() {
  return Operation(*this, command("getWhitelist")).askText();
}

std::string ToviTraffic::getServerIPLists() {
  return Operation(*this, command("getServerIPLists")).askText();
}

std::string ToviTraffic::getLogZipPath() {
  return Operation(*this, command("getLogZipPath")).askText();
}

ResultParam ToviTraffic::getLoraInfo() {
  ResultParam info;
  info.text = Operation(*this, command("getLoraInfo")).askText();
  info.result = mOutcome == ToviOutcome::Done ? 1 : 0;
  return info;
}
