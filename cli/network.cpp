// SPDX-License-Identifier: MIT
// The controller's addresses, and those that it knows.
#include "cli/themes.h"
#include "tools/endpoint.h"

namespace tovi::cli {
namespace {

Argument<std::string> ipv4(const std::string& name, const std::string& help) {
  return argument(name, help, [](const std::string& given) {
    if (!tools::isDottedIpv4(given)) throw Unusable(quoted(given) + " is no IPv4 address");
    return given;
  });
}

Result setAddresses(Call& call, const std::string& ip, const std::string& netmask,
                    const std::string& gateway, int port, const std::string& server) {
  call.traffic.setDeviceNetBasicParam({ip, netmask, gateway, port, server});
  return ofOutcome(call.traffic);
}

Json shown(const VirtualParam& param) {
  return {{"enabled", param.enabled}, {"interval", param.interval}, {"value", param.value}};
}

}  // namespace

void addNetwork(Commands& commands) {
  commands.group("Network");
  commands.add("setDeviceNetBasicParam",
               "Set the network addresses; the controller does not answer", setAddresses,
               ipv4("IP", "The controller's address"), ipv4("NETMASK", "As in 255.255.255.0"),
               ipv4("GATEWAY", "The gateway's address"),
               number("PORT", "The controller's port, 1 to 65535", 1, 65535),
               ipv4("SERVER", "The server's address"));
  commands.add("resetDeviceIpToDefault",
               "Back to the factory's addresses; the controller does not answer",
               sets(&ToviTraffic::resetDeviceIpToDefault));
  commands.add("setVirtualConnection", "Keep a connection",
               sets(&ToviTraffic::setVirtualConnection), onOff("STATE"),
               number("INTERVAL", "60 to 65535", 60, 65535), number("VALUE", "0 to 255", 0, 255));
  commands.add("getVirtualConnection", "Read how a connection is kept",
               asks(&ToviTraffic::getVirtualConnection, shown));
  commands.add("setPingIp", "Set the address to ping", sets(&ToviTraffic::setPingIp),
               text("ADDRESS", "The address"));
  commands.add("getPingIp", "Read the address to ping", asks(&ToviTraffic::getPingIp));
  commands.add("setServerIPLists", "Set the servers", sets(&ToviTraffic::setServerIPLists),
               text("LISTS", "The list"));
  commands.add("getServerIPLists", "Read the servers", asks(&ToviTraffic::getServerIPLists));
  commands.add("addWhitelist", "Add an entry to the whitelist", sets(&ToviTraffic::addWhitelist),
               text("ENTRY", "The entry"));
  commands.add("removeWhitelist", "Remove an entry from the whitelist",
               sets(&ToviTraffic::removeWhitelist), text("ENTRY", "The entry"));
  commands.add("getWhitelist", "Read the whitelist", asks(&ToviTraffic::getWhitelist));
}

}  // namespace tovi::cli
