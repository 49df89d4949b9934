// SPDX-License-Identifier: MIT
// Addresses and links: the controller's own address, its virtual connection, the address it pings,
// servers, the hosts it lets in.
#include <algorithm>

#include "simulator/json.h"
#include "simulator/shapes.h"
#include "tools/printable.h"

namespace tovi::sim {
namespace {

using wire::command;

constexpr std::size_t kBasicSize = 26;
constexpr std::size_t kMaxAddress = 255;
constexpr std::size_t kMaxServers = 4096;
constexpr std::size_t kMaxWhitelist = 100;
constexpr std::uint16_t kShortestInterval = 60;

std::string dotted(View ip) {
  std::string text;
  for (const std::uint8_t byte : ip) text += (text.empty() ? "" : ".") + std::to_string(byte);
  return text;
}

std::array<std::uint8_t, 4> addressAt(View payload, std::size_t at) {
  return {payload[at], payload[at + 1], payload[at + 2], payload[at + 3]};
}

Answer setDeviceNetBasicParam(const Request& request) {
  const View payload = request.payload;
  Network::Basic& basic = request.state.network.basic;
  basic = {addressAt(payload, 0), addressAt(payload, 4), addressAt(payload, 8),
           lowFirst(payload.subspan(12)), addressAt(payload, 14)};
  return request.keepQuiet(dotted(basic.ip) + " mask " + dotted(basic.netmask) + " gateway " +
                           dotted(basic.gateway) + " port " + std::to_string(basic.port) +
                           " server " + dotted(basic.server));
}

Answer resetDeviceIpToDefault(const Request& request) {
  request.state.network.basic = {};
  return request.keepQuiet(dotted(request.state.network.basic.ip));
}

std::string linkText(const Network::VirtualConnection& link) {
  return onOff(link.enabled) + ", interval " + std::to_string(link.interval) + ", value " +
         std::to_string(link.value);
}

Answer setVirtualConnection(const Request& request) {
  const View payload = request.payload;
  const std::uint16_t interval = lowFirst(payload.subspan(1));
  if (payload[0] > 1 || interval < kShortestInterval) return request.refuse();
  auto& link = request.state.network.virtualConnection;
  link = {payload[0] == 1, interval, payload[3]};
  return request.accept(linkText(link));
}

Answer getVirtualConnection(const Request& request) {
  const auto& link = request.state.network.virtualConnection;
  Bytes reply{byteOf(link.enabled)};
  appendLowFirst(reply, link.interval, 2);
  reply.push_back(link.value);
  return request.tell(linkText(link), std::move(reply));
}

// Listing one twice does no harm, like listing it once.
Answer addWhitelist(const Request& request) {
  auto& list = request.state.network.whitelist;
  const std::string entry = textOf(request.payload);
  if (tools::printable(entry) != entry) return request.refuse();
  if (std::find(list.begin(), list.end(), entry) == list.end()) {
    if (list.size() == kMaxWhitelist) return request.refuse("the list is full");
    list.push_back(entry);
  }
  return request.accept(inQuotes(entry));
}

Answer removeWhitelist(const Request& request) {
  const std::string entry = textOf(request.payload);
  const bool listed = std::erase(request.state.network.whitelist, entry) > 0;
  return listed ? request.accept(inQuotes(entry))
                : request.refuse(inQuotes(entry) + " is not listed");
}

Answer getWhitelist(const Request& request) {
  return tellJson(request, request.state.network.whitelist);
}

constexpr Row kRows[] = {
    {command("setDeviceNetBasicParam"), setDeviceNetBasicParam, exactly(kBasicSize)},
    {command("resetDeviceIpToDefault"), resetDeviceIpToDefault},
    {command("setVirtualConnection"), setVirtualConnection, exactly(4)},
    {command("getVirtualConnection"), getVirtualConnection},
    {command("setPingIp"), setNetworkText<&Network::pingAddress>, {1, kMaxAddress}},
    {command("getPingIp"), tellNetworkText<&Network::pingAddress>},
    {command("setServerIPLists"), setNetworkText<&Network::servers>, {1, kMaxServers}},
    {command("getServerIPLists"), tellNetworkText<&Network::servers>},
    {command("addWhitelist"), addWhitelist, {1, kMaxAddress}},
    {command("removeWhitelist"), removeWhitelist, {1, kMaxAddress}},
    {command("getWhitelist"), getWhitelist},
};

}  // namespace

std::span<const Row> networkRows() { return kRows; }

}  // namespace tovi::sim
