// Power, brightness and volume.
#include "cli/commands.h"

namespace tovi::cli {
namespace {

void addPowerCommands(Commands& commands) {
  commands.group("Power and relays");
  commands.add("set-power", "Switch the screen", sets(&ToviTraffic::setPower),
               onOff("STATE", "on or off"));
  commands.add("set-board-power", "Switch the board", sets(&ToviTraffic::setBoardPower),
               onOff("STATE", "on or off"));
  commands.add("set-board-power-and-screen-power", "Switch board and screen",
               sets(&ToviTraffic::setBoardPowerAndScreenPower), onOff("STATE", "on or off"));
  commands.add("set-multi-function-card-power", "Switch the multi-function card",
               sets(&ToviTraffic::setMultiFunctionCardPower),
               number("FIRST", "The first value, 0 to 255", 0, 255),
               number("SECOND", "The second value, 0 to 255", 0, 255), onOff("STATE", "on or off"));
  commands.add("set-relay-powers", "Switch the four relays", sets(&ToviTraffic::setRelayPowers),
               onOff("RELAY1", "on or off"), onOff("RELAY2", "on or off"),
               onOff("RELAY3", "on or off"), onOff("RELAY4", "on or off"));
  commands.add("get-power-state", "Whether the power is on", asksFlag(&ToviTraffic::getPowerState));
  commands.add("get-screen-status", "Whether the screen is on", [](Call& call) {
    constexpr int kOn = 1, kOff = 2;
    const int status = call.traffic.getScreenStatus();
    return ofFlag(call.traffic, status == kOff ? 0 : status == kOn ? 1 : -1);
  });
}

Result setCurve(Call& call, const std::vector<CurvePoint>& points) {
  BrightnessItem item;
  for (std::size_t i = 0; i < points.size(); ++i) {
    item.points[i] = {points[i].ambient, points[i].screen};
  }
  return ofCode(call.traffic, call.traffic.setBrightnessAuto(&item));
}

void addBrightnessCommands(Commands& commands) {
  commands.group("Brightness and volume");
  commands.add("set-brightness", "Set the brightness by hand", sets(&ToviTraffic::setBrightness),
               number("LEVEL", "0 (dark) to 255 (brightest)", 0, 255));
  commands.add("get-brightness-info", "Read brightness (0 to 255) and its mode",
               asks(&ToviTraffic::getBrightnessInfo));
  commands.add("set-brightness-auto", "Let the brightness follow the ambient light by this curve",
               setCurve, curve());
  commands.add("get-brightness-auto", "Read the curve, a line per point: ambient, screen",
               asks(&ToviTraffic::getBrightnessAuto));
  commands.add("set-auto-brightness-time-param", "Set the timing of automatic brightness",
               sets(&ToviTraffic::setAutoBrightnessTimeParam),
               number("FIRST", "The first value, 1 to 255", 1, 255),
               number("SECOND", "The second value, 1 to 255", 1, 255));
  commands.add("set-device-volume", "Set the volume", sets(&ToviTraffic::setDeviceVolume),
               number("VOLUME", "0 (silent) to 255 (loudest)", 0, 255));
  commands.add("get-volume-value", "Read the volume, 0 to 255", [](Call& call) {
    const int volume = static_cast<unsigned char>(call.traffic.getVolumeValue());
    return ofAnswer(call.traffic, volume);
  });
}

}  // namespace

void addScreenCommands(Commands& commands) {
  addPowerCommands(commands);
  addBrightnessCommands(commands);
}

}  // namespace tovi::cli
