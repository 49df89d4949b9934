// SPDX-License-Identifier: MIT
// What keeps the controller in order.
#include "cli/themes.h"

namespace tovi::cli {
namespace {

Json shown(const BackUpsInfo& info) { return {{"state", info.state}, {"times", info.times}}; }

}  // namespace

void addMaintenance(Commands& commands) {
  commands.group("Maintenance");
  commands.add("restartDevice", "Restart the controller", sets(&ToviTraffic::restartDevice));
  commands.add("sendHeartBeat", "Tell the controller that a host is there; it does not answer",
               sets(&ToviTraffic::sendHeartBeat));
  commands.add(
      "setCloseScreenTemperature", "Set the temperature at which the screen closes, in degrees",
      sets(&ToviTraffic::setCloseScreenTemperature), number("DEGREES", "0 to 150 degrees", 0, 150));
  commands.add("getCloseScreenTemperature", "Read the temperature at which the screen closes",
               asks(&ToviTraffic::getCloseScreenTemperature));
  commands.add("solidify", "Make settings permanent", sets(&ToviTraffic::solidify),
               number("VALUE", "0 to 255", 0, 255));
  commands.add("backups", "Make a backup; prints the controller's answer",
               asks(&ToviTraffic::backups));
  commands.add("getBackupsTimes", "Read how the last backup went",
               asks(&ToviTraffic::getBackupsTimes, shown));
  commands.add("getLogZipPath", "Read where the controller's log archive is",
               asks(&ToviTraffic::getLogZipPath));
  commands.add("removeAppPageName", "Remove an app", sets(&ToviTraffic::removeAppPageName),
               text("PACKAGE", "Its package name"));
  commands.add("setSSHEnabled", "Switch remote shell access", sets(&ToviTraffic::setSSHEnabled),
               onOff("STATE"));
  commands.add("getSSHEnabled", "Whether there is remote shell access",
               asksFlag(&ToviTraffic::getSSHEnabled));
  commands.add("setSensorInfo", "Configure the sensors", sets(&ToviTraffic::setSensorInfo),
               text("INFO"));
  commands.add("getSensorInfo", "Read the sensors", asks(&ToviTraffic::getSensorInfo));
  commands.add("clearCache", "Empty the cache", sets(&ToviTraffic::clearCache));
}

}  // namespace tovi::cli
