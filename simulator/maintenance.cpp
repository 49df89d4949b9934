// SPDX-License-Identifier: MIT
// What service staff use: restart, the temperature that turns the screen off, backups, SSH, logs,
// sensors, apps, caches.
#include "simulator/shapes.h"

namespace tovi::sim {
namespace {

using wire::command;

constexpr std::uint8_t kHighestCloseTemperature = 150;
constexpr std::size_t kMaxSensors = 4096;
constexpr std::size_t kMaxApp = 256;

Answer restartDevice(const Request& request) {
  ++request.state.restarts;
  return request.accept();
}

Answer sendHeartBeat(const Request& request) {
  ++request.state.heartBeats;
  return request.keepQuiet();
}

Answer setCloseScreenTemperature(const Request& request) {
  const std::uint8_t degrees = request.payload[5];
  if (degrees > kHighestCloseTemperature) return request.refuse();
  request.state.maintenance.closeTemperature = degrees;
  return request.accept(std::to_string(degrees) + " degrees");
}

Answer getCloseScreenTemperature(const Request& request) {
  const std::uint8_t degrees = request.state.maintenance.closeTemperature;
  return request.tell(std::to_string(degrees) + " degrees", {0, 0, 0, 0, 0, degrees});
}

Answer solidify(const Request& request) {
  request.state.maintenance.solidified = request.payload[0];
  return request.accept(std::to_string(request.payload[0]));
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

Answer setSSHEnabled(const Request& request) {
  if (request.payload[1] > 1) return request.refuse();
  request.state.maintenance.ssh = request.payload[1] == 1;
  return request.accept(onOff(request.state.maintenance.ssh));
}

Answer getSSHEnabled(const Request& request) {
  const bool on = request.state.maintenance.ssh;
  return request.tell(onOff(on), {kAsk, byteOf(on)});
}

Answer getLogZipPath(const Request& request) { return tellText(request, "/log/tovisim.zip"); }

Answer setSensorInfo(const Request& request) {
  return setText(request, request.state.maintenance.sensors);
}

Answer getSensorInfo(const Request& request) {
  return tellText(request, request.state.maintenance.sensors);
}

Answer removeAppPageName(const Request& request) {
  const std::string name = textOf(request.payload);
  const bool installed = std::erase(request.state.maintenance.apps, name) > 0;
  return installed ? request.accept(inQuotes(name))
                   : request.refuse(inQuotes(name) + " is not installed");
}

Answer clearCache(const Request& request) {
  ++request.state.maintenance.cachesCleared;
  return request.accept();
}

constexpr Row kRows[] = {
    {command("restartDevice"), restartDevice},
    {command("sendHeartBeat"), sendHeartBeat, atLeast(0)},
    {command("setCloseScreenTemperature"), setCloseScreenTemperature, exactly(6)},
    {command("getCloseScreenTemperature"), getCloseScreenTemperature},
    {command("solidify"), solidify, exactly(1)},
    {command("backups"), backups, exactly(1), beginsWith<kDo>, refuseBehindSwitch},
    {command("getBackupsTimes"), getBackupsTimes, exactly(1), beginsWith<kAsk>, refuseBehindSwitch},
    {command("setSSHEnabled"), setSSHEnabled, exactly(2), beginsWith<kDo>},
    {command("getSSHEnabled"), getSSHEnabled, exactly(1), beginsWith<kAsk>},
    {command("getLogZipPath"), getLogZipPath},
    {command("setSensorInfo"), setSensorInfo, atMost(kMaxSensors)},
    {command("getSensorInfo"), getSensorInfo},
    {command("removeAppPageName"), removeAppPageName, {1, kMaxApp}},
    {command("clearCache"), clearCache},
};

}  // namespace

std::span<const Row> maintenanceRows() { return kRows; }

}  // namespace tovi::sim
