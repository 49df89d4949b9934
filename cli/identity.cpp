// SPDX-License-Identifier: MIT
// Who the controller is and how it does.
#include "cli/records.h"
#include "cli/themes.h"

namespace tovi::cli {
namespace {

Json shown(const DeviceType& status) {
  return {{"temperature", status.getTemperature()},
          {"brightness", status.getScreenBrightness()},
          {"brightnessMode", brightnessMode(status.getBrightnessType())},
          {"environmentBrightness", status.getEnvironmentBrightness()},
          {"screenState", status.isScreenOpen()},
          {"screenPowerOn", status.isScreenPowerOpen()},
          {"boxDoorOpen", status.isBoxDoorOpen()},
          {"internalInput", status.isInputSourceInside()}};
}

Json shown(const DeviceMemorySize& size) { return {{"total", size.total}, {"free", size.free}}; }

Json shown(const CpuAndMemoryInfo& info) {
  return {{"cpuUsage", info.cpuUsage}, {"diskTotal", info.diskTotal}, {"diskFree", info.diskFree}};
}

}  // namespace

void addIdentity(Commands& commands) {
  commands.group("Identity and status");
  commands.add("setDeviceName", "Name the controller", sets(&ToviTraffic::setDeviceName),
               text("NAME", "The name, UTF-8"));
  commands.add("getDeviceName", "Read the controller's name", asks(&ToviTraffic::getDeviceName));
  commands.add("getDeviceVersion", "Read the firmware's version",
               asks(&ToviTraffic::getDeviceVersion));
  commands.add("getSn", "Read the serial number", asks(&ToviTraffic::getSn));
  commands.add("getMac", "Read the MAC address", asks(&ToviTraffic::getMac));
  commands.add("getDeviceType", "Read the status block", asks(&ToviTraffic::getDeviceType, shown));
  commands.add("getDeviceMemorySize", "Read the memory, as the controller counts it",
               asks(&ToviTraffic::getDeviceMemorySize, shown));
  commands.add("getCpuAndMemoryInfo", "Read processor load and storage",
               asks(&ToviTraffic::getCpuAndMemoryInfo, shown));
  commands.add("getSystemInfo", "Read the system's data", asks(&ToviTraffic::getSystemInfo));
  commands.add("getSurveil", "Read the monitoring data", asks(&ToviTraffic::getSurveil));
}

}  // namespace tovi::cli
