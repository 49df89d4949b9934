// The controller itself: identity, status, maintenance and its secure mode.
#include <algorithm>

#include "cli/commands.h"

namespace tovi::cli {

void addIdentityCommands(Commands& commands) {
  commands.group("Identity and status");
  commands.add("set-device-name", "Name the controller", sets(&ToviTraffic::setDeviceName),
               text("NAME", "The name, UTF-8"));
  commands.add("get-device-name", "Read the controller's name", asks(&ToviTraffic::getDeviceName));
  commands.add("get-device-version", "Read the firmware's version",
               asks(&ToviTraffic::getDeviceVersion));
  commands.add("get-sn", "Read the serial number", asks(&ToviTraffic::getSn));
  commands.add("get-mac", "Read the MAC address", asks(&ToviTraffic::getMac));
  commands.add("get-device-type", "Read the status block", asks(&ToviTraffic::getDeviceType));
  commands.add("get-device-memory-size", "Read the memory, as the controller counts it",
               asks(&ToviTraffic::getDeviceMemorySize));
  commands.add("get-cpu-and-memory-info", "Read processor load and storage",
               asks(&ToviTraffic::getCpuAndMemoryInfo));
  commands.add("get-system-info", "Read the system's data", asks(&ToviTraffic::getSystemInfo));
  commands.add("get-surveil", "Read the monitoring data", asks(&ToviTraffic::getSurveil));
}

namespace {

void addMaintenanceCommands(Commands& commands) {
  commands.group("Maintenance");
  commands.add("restart-device", "Restart the controller", sets(&ToviTraffic::restartDevice));
  commands.add("send-heart-beat", "Tell the controller that a host is there; it does not answer",
               sets(&ToviTraffic::sendHeartBeat));
  commands.add(
      "set-close-screen-temperature", "Set the temperature at which the screen closes, in degrees",
      sets(&ToviTraffic::setCloseScreenTemperature), number("DEGREES", "0 to 150 degrees", 0, 150));
  commands.add("get-close-screen-temperature", "Read the temperature at which the screen closes",
               asks(&ToviTraffic::getCloseScreenTemperature));
  commands.add("solidify", "Make settings permanent", sets(&ToviTraffic::solidify),
               number("VALUE", "0 to 255", 0, 255));
  commands.add("backups", "Make a backup; prints the controller's answer",
               asks(&ToviTraffic::backups));
  commands.add("get-backups-times", "Read how the last backup went",
               asks(&ToviTraffic::getBackupsTimes));
  commands.add("get-log-zip-path", "Read where the controller's log archive is",
               asks(&ToviTraffic::getLogZipPath));
  commands.add("remove-app-page-name", "Remove an app", sets(&ToviTraffic::removeAppPageName),
               text("PACKAGE", "Its package name, 1 to 256 bytes", 1, 256));
  commands.add("set-ssh-enabled", "Switch remote shell access", sets(&ToviTraffic::setSSHEnabled),
               onOff("STATE", "on or off"));
  commands.add("get-ssh-enabled", "Whether there is remote shell access",
               asksFlag(&ToviTraffic::getSSHEnabled));
}

constexpr std::size_t kKeyBytes = 8;

struct SecureMode {
  int mode = 0;
  std::string key;  // empty in mode 0, which has none
};

SecureMode parseSecureMode(const std::vector<std::string>& words) {
  const std::string& given = words.front();
  const std::size_t colon = std::min(given.find(':'), given.size());
  const SecureMode mode{numberWithin(given.substr(0, colon), 0, 255),
                        given.substr(std::min(colon + 1, given.size()))};
  const bool keyless = mode.mode == 0 && colon == given.size();
  if (!keyless && (mode.mode == 0 || mode.key.size() != kKeyBytes)) {
    throw Unusable(quoted(given) + " is neither 0 nor a mode and a key as in 1:12345678");
  }
  return mode;
}

Result setSecureMode(Call& call, const std::string& label, const SecureMode& mode, bool enable,
                     const std::string& secondKey) {
  const DeviceSecretParam param{label, mode.mode, enable, mode.key, secondKey};
  return ofCode(call.traffic, call.traffic.setDeviceSecretParam(param, !secondKey.empty()));
}

void addSecurityCommands(Commands& commands) {
  commands.group("Secure mode");
  commands.add("get-is-secret", "Whether the controller expects enciphered traffic",
               asksFlag(&ToviTraffic::getIsSecret));
  commands.add("set-device-key", "Set the controller's key", sets(&ToviTraffic::setDeviceKey),
               text("KEY", "The key"));
  const Argument<SecureMode> mode{"MODE", "0, or 1 to 255 with a key of 8 bytes, as in 1:12345678",
                                  parseSecureMode};
  Argument<std::string> secondKey =
      text("SECOND_KEY", "A second key of 8 bytes", kKeyBytes, kKeyBytes);
  secondKey.required = false;
  commands.add("set-device-secret-param", "Configure secure mode", setSecureMode,
               text("LABEL", "1 to 16 bytes", 1, 16), mode, onOff("STATE", "on or off"), secondKey);
}

}  // namespace

void addDeviceCommands(Commands& commands) {
  addMaintenanceCommands(commands);
  addSecurityCommands(commands);
}

}  // namespace tovi::cli
