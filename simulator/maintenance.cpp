// What service staff use: SSH, backups, the pre-stored screen, caches, apps, sensors, RDS.
#include <algorithm>

#include "simulator/shapes.h"

namespace tovi::sim {
namespace {

using wire::command;

constexpr std::size_t kMaxApp = 256;
constexpr std::size_t kMaxSensors = 4096;
constexpr std::size_t kMaxRoad = 32;

// Commands with a switch in front of the payload: 1 does something, 0 asks. The reply repeats it.
constexpr std::uint8_t kAsk = 0;
constexpr std::uint8_t kDo = 1;

Bytes refuseBehindSwitch(View payload) { return {payload.empty() ? kAsk : payload[0], 0}; }

Answer setSSHEnabled(const Request& request) {
  if (request.payload[1] > 1) return request.refuse();
  request.state.maintenance.ssh = request.payload[1] == 1;
  return request.accept(onOff(request.state.maintenance.ssh));
}

Answer getSSHEnabled(const Request& request) {
  const bool on = request.state.maintenance.ssh;
  return request.tell(onOff(on), {kAsk, byteOf(on)});
}

Answer backups(const Request& request) {
  request.state.maintenance.backup = request.state.clock.time;
  return request.tell("accepted", {kDo, 1});
}

// The time of the last one as milliseconds, low byte first.
Answer getBackupsTimes(const Request& request) {
  const auto& backup = request.state.maintenance.backup;
  Bytes reply{kAsk, byteOf(backup.has_value())};
  appendLowFirst(reply, static_cast<std::uint64_t>(backup.value_or(0)), 8);
  return request.tell(backup ? "made at " + std::to_string(*backup) : "none", std::move(reply));
}

Answer setPreStoredScreenEnabled(const Request& request) {
  if (request.payload[1] > 1) return request.refuse();
  request.state.display.preStoredScreen = request.payload[1] == 1;
  return request.tell("accepted, " + onOff(request.payload[1] == 1), {kDo, 1});
}

Answer getPreStoredScreenEnabled(const Request& request) {
  const bool on = request.state.display.preStoredScreen;
  return request.tell(onOff(on), {kAsk, 1, byteOf(on)});
}

Answer solidify(const Request& request) {
  request.state.maintenance.solidified = request.payload[0];
  return request.accept(std::to_string(request.payload[0]));
}

Answer clearCache(const Request& request) {
  ++request.state.maintenance.cachesCleared;
  return request.accept();
}

Answer removeAppPageName(const Request& request) {
  const std::string name = textOf(request.payload);
  const bool installed = std::erase(request.state.maintenance.apps, name) > 0;
  return installed ? request.accept(inQuotes(name))
                   : request.refuse(inQuotes(name) + " is not installed");
}

Answer setSensorInfo(const Request& request) {
  return setText(request, request.state.maintenance.sensors);
}

Answer getSensorInfo(const Request& request) {
  return tellText(request, request.state.maintenance.sensors);
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
  request.state.maintenance.rdsRoad.assign(digits.begin(), digits.end());
  return request.accept(digitsText(digits));
}

Answer getRDSRoad(const Request& request) {
  if (request.payload[0] != 1) return request.refuse();
  const Bytes& digits = request.state.maintenance.rdsRoad;
  return request.tell(digitsText(digits), digits);
}

constexpr Row kRows[] = {
    {command("setSSHEnabled"), setSSHEnabled, exactly(2), beginsWith<kDo>},
    {command("getSSHEnabled"), getSSHEnabled, exactly(1), beginsWith<kAsk>},
    {command("backups"), backups, exactly(1), beginsWith<kDo>, refuseBehindSwitch},
    {command("getBackupsTimes"), getBackupsTimes, exactly(1), beginsWith<kAsk>, refuseBehindSwitch},
    {command("setPreStoredScreenEnabled"), setPreStoredScreenEnabled, exactly(2), beginsWith<kDo>,
     refuseBehindSwitch},
    {command("getPreStoredScreenEnabled"), getPreStoredScreenEnabled, exactly(1), beginsWith<kAsk>,
     refuseBehindSwitch},
    {command("solidify"), solidify, exactly(1)},
    {command("clearCache"), clearCache},
    {command("removeAppPageName"), removeAppPageName, {1, kMaxApp}},
    {command("setSensorInfo"), setSensorInfo, atMost(kMaxSensors)},
    {command("getSensorInfo"), getSensorInfo},
    {command("setRDSRoad"), setRDSRoad, {1, kMaxRoad}},
    {command("getRDSRoad"), getRDSRoad, exactly(1)},
};

}  // namespace

std::span<const Row> maintenanceRows() { return kRows; }

}  // namespace tovi::sim
