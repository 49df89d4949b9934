// Radio and links: Wi-Fi, access point, virtual connection, LoRa, SIM card.
#include <algorithm>

#include "simulator/json.h"
#include "simulator/shapes.h"

namespace tovi::sim {
namespace {

using wire::command;

constexpr std::size_t kMaxConfig = 1024;
constexpr std::size_t kMaxLora = 4096;
constexpr std::uint16_t kShortestInterval = 60;

Answer getWifiList(const Request& request) {
  const Json networks = Json::array(
      {Json{{"ssid", "workshop"}, {"signal", -51}}, Json{{"ssid", "roadside"}, {"signal", -74}}});
  return tellJson(request,
                  {{"connected", request.state.network.wifiConnection}, {"networks", networks}});
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

Answer switchToSoftsim(const Request& request) {
  request.state.network.softSim = true;
  return request.accept();
}

Answer getSimInfo(const Request& request) {
  return tellJson(request, {{"sim", request.state.network.softSim ? "soft" : "card"}});
}

Answer getMobileInfo(const Request& request) {
  return tellJson(request, {{"operator", "simulated"}, {"network", "4G"}, {"signal", -67}});
}

constexpr Row kRows[] = {
    {command("setWifiState"), setNetworkFlag<&Network::wifi>, exactly(1)},
    {command("getWifiState"), tellNetworkFlag<&Network::wifi>},
    {command("connectWifi"), setNetworkText<&Network::wifiConnection>, {1, kMaxConfig}},
    {command("getWifiList"), getWifiList},
    {command("setWifiApState"), setNetworkFlag<&Network::accessPoint>, exactly(1)},
    {command("getWifiApState"), tellNetworkFlag<&Network::accessPoint>},
    {command("setWifiApConfig"), setNetworkText<&Network::accessPointConfig>, {1, kMaxConfig}},
    {command("getWifiApConfig"), tellNetworkText<&Network::accessPointConfig>},
    {command("setVirtualConnection"), setVirtualConnection, exactly(4)},
    {command("getVirtualConnection"), getVirtualConnection},
    {command("setLoraInfo"), setNetworkText<&Network::lora>, atMost(kMaxLora)},
    {command("getLoraInfo"), tellNetworkText<&Network::lora>},
    {command("switchToSoftsim"), switchToSoftsim},
    {command("getSimInfo"), getSimInfo},
    {command("getMobileInfo"), getMobileInfo},
};

}  // namespace

std::span<const Row> networkRows() { return kRows; }

}  // namespace tovi::sim
