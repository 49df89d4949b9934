// Addresses, wireless, sensors and what else the controller is connected to.
#include "cli/commands.h"

namespace tovi::cli {
namespace {

Result setAddresses(Call& call, const std::string& ip, const std::string& netmask,
                    const std::string& gateway, int port, const std::string& server) {
  call.traffic.setDeviceNetBasicParam({ip, netmask, gateway, port, server});
  return ofOutcome(call.traffic);
}

void addAddressCommands(Commands& commands) {
  commands.group("Network");
  commands.add("set-device-net-basic-param",
               "Set the network addresses; the controller does not answer", setAddresses,
               ipv4("IP", "The controller's address"), ipv4("NETMASK", "As in 255.255.255.0"),
               ipv4("GATEWAY", "The gateway's address"),
               number("PORT", "The controller's port, 1 to 65535", 1, 65535),
               ipv4("SERVER", "The server's address"));
  commands.add("reset-device-ip-to-default",
               "Back to the factory's addresses; the controller does not answer",
               sets(&ToviTraffic::resetDeviceIpToDefault));
  commands.add("set-virtual-connection", "Keep a connection",
               sets(&ToviTraffic::setVirtualConnection), onOff("STATE", "on or off"),
               number("INTERVAL", "60 to 65535", 60, 65535), number("VALUE", "0 to 255", 0, 255));
  commands.add("get-virtual-connection", "Read how a connection is kept",
               asks(&ToviTraffic::getVirtualConnection));
  commands.add("set-ping-ip", "Set the address to ping", sets(&ToviTraffic::setPingIp),
               text("ADDRESS", "The address"));
  commands.add("get-ping-ip", "Read the address to ping", asks(&ToviTraffic::getPingIp));
  commands.add("set-server-ip-lists", "Set the servers", sets(&ToviTraffic::setServerIPLists),
               text("LISTS", "The list"));
  commands.add("get-server-ip-lists", "Read the servers", asks(&ToviTraffic::getServerIPLists));
  commands.add("add-whitelist", "Add an entry to the whitelist", sets(&ToviTraffic::addWhitelist),
               text("ENTRY", "The entry"));
  commands.add("remove-whitelist", "Remove an entry from the whitelist",
               sets(&ToviTraffic::removeWhitelist), text("ENTRY", "The entry"));
  commands.add("get-whitelist", "Read the whitelist", asks(&ToviTraffic::getWhitelist));
}

void addWirelessCommands(Commands& commands) {
  commands.group("Wireless and mobile");
  commands.add("set-wifi-state", "Switch the wireless client", sets(&ToviTraffic::setWifiState),
               onOff("STATE", "on or off"));
  commands.add("get-wifi-state", "Read the wireless client's state",
               asks(&ToviTraffic::getWifiState));
  commands.add("get-wifi-list", "Read the networks in reach", asks(&ToviTraffic::getWifiList));
  commands.add("connect-wifi", "Join a network", sets(&ToviTraffic::connectWifi),
               text("CONNECTION", "At most 1024 bytes", 0, 1024));
  commands.add("set-wifi-ap-state", "Switch the access point", sets(&ToviTraffic::setWifiApState),
               onOff("STATE", "on or off"));
  commands.add("get-wifi-ap-state", "Read the access point's state",
               asks(&ToviTraffic::getWifiApState));
  commands.add("set-wifi-ap-config", "Configure the access point",
               sets(&ToviTraffic::setWifiApConfig), text("CONFIG", "At most 1024 bytes", 0, 1024));
  commands.add("get-wifi-ap-config", "Read the access point's configuration",
               asks(&ToviTraffic::getWifiApConfig));
  commands.add("get-mobile-info", "Read the mobile network's state",
               asks(&ToviTraffic::getMobileInfo));
  commands.add("get-sim-info", "Read the SIM card's data", asks(&ToviTraffic::getSimInfo));
  commands.add("switch-to-softsim", "Change to the software SIM",
               sets(&ToviTraffic::switchToSoftsim));
}

// The library shows the reply's command byte as a first character; it is no digit of the road.
Result getRoad(Call& call) {
  const std::string road = call.traffic.getRDSRoad();
  return ofAnswer(call.traffic, road.empty() ? road : road.substr(1));
}

void addSensorCommands(Commands& commands) {
  commands.group("Sensors and radio");
  commands.add("set-sensor-info", "Configure the sensors", sets(&ToviTraffic::setSensorInfo),
               text("INFO", "At most 4096 bytes", 0, 4096));
  commands.add("get-sensor-info", "Read the sensors", asks(&ToviTraffic::getSensorInfo));
  commands.add("set-lora-info", "Configure LoRa", sets(&ToviTraffic::setLoraInfo),
               text("INFO", "At most 4096 bytes", 0, 4096));
  commands.add("get-lora-info", "Read LoRa's configuration", asks(&ToviTraffic::getLoraInfo));
  commands.add("set-rds-road", "Set the radio's road", sets(&ToviTraffic::setRDSRoad),
               digits("DIGITS", "Digits"));
  commands.add("get-rds-road", "Read the radio's road", getRoad);
}

}  // namespace

void addNetworkCommands(Commands& commands) {
  addAddressCommands(commands);
  addWirelessCommands(commands);
  addSensorCommands(commands);
}

}  // namespace tovi::cli
