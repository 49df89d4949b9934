// Settings and queries of a few bytes, and the status block.
#include <memory>

#include "cli/commands.h"

namespace tovi::cli {
namespace {

// A text that the library handed over; null when there is none.
nlohmann::ordered_json taken(char* text) {
  if (text == nullptr) return {};
  const std::string copy = text;
  deleteArry(&text);
  return copy;
}

nlohmann::ordered_json shown(const DeviceType& status) {
  return {{"temperature", status.getTemperature()},
          {"brightness", status.getScreenBrightness()},
          {"brightnessMode", status.getBrightnessType()},
          {"environmentBrightness", status.getEnvironmentBrightness()},
          {"screenState", status.isScreenOpen()},
          {"screenPowerOn", status.isScreenPowerOpen()},
          {"boxDoorOpen", status.isBoxDoorOpen()},
          {"internalInput", status.isInputSourceInside()}};
}

void addScreenCommands(Commands& commands) {
  commands.group("Screen");
  commands.add("set-power", "Switch the screen on or off", [](Arguments& arguments) -> Action {
    const auto on = arguments.onOff("STATE", "The screen's new state");
    return [on](ToviTraffic& traffic) { return ofCode(traffic.setPower(*on)); };
  });
  commands.add("set-brightness", "Set the brightness by hand", [](Arguments& arguments) -> Action {
    const auto level = arguments.number("LEVEL", "0 (dark) to 255 (brightest)", 0, 255);
    return [level](ToviTraffic& traffic) { return ofCode(traffic.setBrightness(*level)); };
  });
  commands.add("set-device-volume", "Set the volume", [](Arguments& arguments) -> Action {
    const auto volume = arguments.number("VOLUME", "0 (silent) to 255", 0, 255);
    return [volume](ToviTraffic& traffic) { return ofCode(traffic.setDeviceVolume(*volume)); };
  });
  commands.add("get-volume-value", "Read the volume", [](Arguments&) -> Action {
    return [](ToviTraffic& traffic) {
      const int volume = static_cast<unsigned char>(traffic.getVolumeValue());
      return ofOutcome(traffic, volume);
    };
  });
}

void addIdentityCommands(Commands& commands) {
  commands.group("Identity and status");
  commands.add("get-device-type", "Read the status block", [](Arguments&) -> Action {
    return [](ToviTraffic& traffic) {
      const std::unique_ptr<DeviceType> status(traffic.getDeviceType());
      return ofOutcome(traffic, status == nullptr ? nlohmann::ordered_json() : shown(*status));
    };
  });
  commands.add("set-device-name", "Name the controller", [](Arguments& arguments) -> Action {
    const auto name = arguments.text("NAME", "The name, UTF-8");
    return [name](ToviTraffic& traffic) { return ofCode(traffic.setDeviceName(name->c_str())); };
  });
  commands.add("get-device-name", "Read the controller's name", [](Arguments&) -> Action {
    return [](ToviTraffic& traffic) {
      const nlohmann::ordered_json name = taken(traffic.getDeviceName());
      return ofOutcome(traffic, name);
    };
  });
  commands.add("get-device-version", "Read the firmware's version", [](Arguments&) -> Action {
    return [](ToviTraffic& traffic) {
      const nlohmann::ordered_json version = taken(traffic.getDeviceVersion());
      return ofOutcome(traffic, version);
    };
  });
  commands.add("get-sn", "Read the serial number", [](Arguments&) -> Action {
    return [](ToviTraffic& traffic) {
      const std::string serial = traffic.getSn();
      return ofOutcome(traffic, serial);
    };
  });
}

void addMaintenanceCommands(Commands& commands) {
  commands.group("Maintenance");
  commands.add("restart-device", "Restart the controller", [](Arguments&) -> Action {
    return [](ToviTraffic& traffic) { return ofCode(traffic.restartDevice()); };
  });
  commands.add("send-heart-beat", "Tell the controller that a host is there; it does not answer",
               [](Arguments&) -> Action {
                 return [](ToviTraffic& traffic) {
                   traffic.sendHeartBeat();
                   return ofOutcome(traffic);
                 };
               });
}

}  // namespace

void addDeviceCommands(Commands& commands) {
  addScreenCommands(commands);
  addIdentityCommands(commands);
  addMaintenanceCommands(commands);
}

}  // namespace tovi::cli
