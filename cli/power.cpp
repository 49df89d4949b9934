// SPDX-License-Identifier: MIT
// Power of screen, board and relays.
#include "cli/themes.h"

namespace tovi::cli {
namespace {

Result getScreenStatus(Call& call) {
  constexpr int kOn = 1, kOff = 2;
  const int status = call.traffic.getScreenStatus();
  return ofFlag(call.traffic, status == kOff ? 0 : status == kOn ? 1 : -1);
}

}  // namespace

void addPower(Commands& commands) {
  commands.group("Power and relays");
  commands.add("setPower", "Switch the screen", sets(&ToviTraffic::setPower), onOff("STATE"));
  commands.add("setBoardPower", "Switch the board", sets(&ToviTraffic::setBoardPower),
               onOff("STATE"));
  commands.add("setBoardPowerAndScreenPower", "Switch board and screen",
               sets(&ToviTraffic::setBoardPowerAndScreenPower), onOff("STATE"));
  commands.add("setMultiFunctionCardPower", "Switch the multi-function card",
               sets(&ToviTraffic::setMultiFunctionCardPower),
               number("FIRST", "The first value, 0 to 255", 0, 255),
               number("SECOND", "The second value, 0 to 255", 0, 255), onOff("STATE"));
  commands.add("setRelayPowers", "Switch the four relays", sets(&ToviTraffic::setRelayPowers),
               onOff("RELAY1"), onOff("RELAY2"), onOff("RELAY3"), onOff("RELAY4"));
  commands.add("getPowerState", "Whether the power is on", asksFlag(&ToviTraffic::getPowerState));
  commands.add("getScreenStatus", "Whether the screen is on", getScreenStatus);
}

}  // namespace tovi::cli
