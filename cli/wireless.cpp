// SPDX-License-Identifier: MIT
// Wireless networks, the mobile network and radio.
#include "cli/themes.h"

namespace tovi::cli {
namespace {

Json shown(const ResultParam& result) { return result.text; }

Argument<std::string> digits() {
  return argument("DIGITS", "Digits", [](const std::string& given) {
    if (given.empty() || given.find_first_not_of("0123456789") != std::string::npos) {
      throw Unusable(quoted(given) + " is not all digits");
    }
    return given;
  });
}

// The library shows the reply's command byte as a first character; it is no digit of the road.
Json shownRoad(const std::string& road) { return road.empty() ? road : road.substr(1); }

void addMobile(Commands& commands) {
  commands.add("getMobileInfo", "Read the mobile network's state",
               asks(&ToviTraffic::getMobileInfo));
  commands.add("getSimInfo", "Read the SIM card's data", asks(&ToviTraffic::getSimInfo));
  commands.add("switchToSoftsim", "Change to the software SIM",
               sets(&ToviTraffic::switchToSoftsim));
}

void addRadio(Commands& commands) {
  commands.add("setLoraInfo", "Configure LoRa", sets(&ToviTraffic::setLoraInfo), text("INFO"));
  commands.add("getLoraInfo", "Read LoRa's configuration", asks(&ToviTraffic::getLoraInfo, shown));
  commands.add("setRDSRoad", "Set the radio's road", sets(&ToviTraffic::setRDSRoad), digits());
  commands.add("getRDSRoad", "Read the radio's road", asks(&ToviTraffic::getRDSRoad, shownRoad));
}

}  // namespace

void addWireless(Commands& commands) {
  commands.group("Wireless and mobile");
  commands.add("setWifiState", "Switch the wireless client", sets(&ToviTraffic::setWifiState),
               onOff("STATE"));
  commands.add("getWifiState", "Read the wireless client's state",
               asks(&ToviTraffic::getWifiState));
  commands.add("getWifiList", "Read the networks in reach", asks(&ToviTraffic::getWifiList));
  commands.add("connectWifi", "Join a network", sets(&ToviTraffic::connectWifi),
               text("CONNECTION"));
  commands.add("setWifiApState", "Switch the access point", sets(&ToviTraffic::setWifiApState),
               onOff("STATE"));
  commands.add("getWifiApState", "Read the access point's state",
               asks(&ToviTraffic::getWifiApState));
  commands.add("setWifiApConfig", "Configure the access point", sets(&ToviTraffic::setWifiApConfig),
               text("CONFIG"));
  commands.add("getWifiApConfig", "Read the access point's configuration",
               asks(&ToviTraffic::getWifiApConfig));
  addMobile(commands);
  addRadio(commands);
}

}  // namespace tovi::cli
