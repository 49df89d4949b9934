// SPDX-License-Identifier: MIT
// Radio: Wi-Fi and access point, mobile network and SIM card, LoRa, RDS.
#include <algorithm>

#include "simulator/json.h"
#include "simulator/shapes.h"

namespace tovi::sim {
namespace {

using wire::command;

constexpr std::size_t kMaxConfig = 1024;
constexpr std::size_t kMaxLora = 4096;
constexpr std::size_t kMaxRoad = 32;

Answer getWifiList(const Request& request) {
  const Json networks = Json::array(
      {Json{{"ssid", "workshop"}, {"signal", -51}}, Json{{"ssid", "roadside"}, {"signal", -74}}});
  return tellJson(request,
                  {{"connected", request.state.network.wifiConnection}, {"networks", networks}});
}

Answer getMobileInfo(const Request& request) {
  return tellJson(request, {{"operator", "simulated"}, {"network", "4G"}, {"signal", -67}});
}

Answer getSimInfo(const Request& request) {
  return tellJson(request, {{"sim", request.state.network.softSim ? "soft" : "card"}});
}

Answer switchToSoftsim(const Request& request) {
  request.state.network.softSim = true;
  return request.accept();
}

std::string digitsText(View digits) {
  std::string text;
  for (const std::uint8_t digit : digits) text += static_cast<char>('0' + digit);
  return text;
}

Answer setRDSRoad(const Request& request) {
  const View digits = request.payload;
  if (std::any_of(digits.begin(), digits.end(), [](auto digit) { return digit > 9; })) {
    return request.refuse();
  }
  request.state.network.rdsRoad.assign(digits.begin(), digits.end());
  return request.accept(digitsText(digits));
}

Answer getRDSRoad(const Request& request) {
  if (request.payload[0] != 1) return request.refuse();
  const Bytes& digits = request.state.network.rdsRoad;
  return request.tell(digitsText(digits), digits);
}

constexpr Row kRows[] = {
    {command("setWifiState"), setNetworkFlag<&Network::wifi>, exactly(1)},
    {command("getWifiState"), tellNetworkFlag<&Network::wifi>},
    {command("getWifiList"), getWifiList},
    {command("connectWifi"), setNetworkText<&Network::wifiConnection>, {1, kMaxConfig}},
    {command("setWifiApState"), setNetworkFlag<&Network::accessPoint>, exactly(1)},
    {command("getWifiApState"), tellNetworkFlag<&Network::accessPoint>},
    {command("setWifiApConfig"), setNetworkText<&Network::accessPointConfig>, {1, kMaxConfig}},
    {command("getWifiApConfig"), tellNetworkText<&Network::accessPointConfig>},
    {command("getMobileInfo"), getMobileInfo},
    {command("getSimInfo"), getSimInfo},
    {command("switchToSoftsim"), switchToSoftsim},
    {command("setLoraInfo"), setNetworkText<&Network::lora>, atMost(kMaxLora)},
    {command("getLoraInfo"), tellNetworkText<&Network::lora>},
    {command("setRDSRoad"), setRDSRoad, {1, kMaxRoad}},
    {command("getRDSRoad"), getRDSRoad, exactly(1)},
};

}  // namespace

std::span<const Row> wirelessRows() { return kRows; }

}  // namespace tovi::sim
