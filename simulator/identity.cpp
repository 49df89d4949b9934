// SPDX-License-Identifier: MIT
// Who the controller is, and what it measures and tells of itself: name, version, status block,
// memory, system, surveillance.
#include <algorithm>
#include <cstdlib>

#include "simulator/json.h"
#include "simulator/shapes.h"

namespace tovi::sim {
namespace {

using wire::command;

constexpr std::size_t kMaxName = 255;
constexpr std::uint64_t kKilobyte = 1024;
constexpr std::uint64_t kMegabyte = 1024 * kKilobyte;

Answer setDeviceName(const Request& request) {
  request.state.name = textOf(request.payload.subspan(1));
  return request.accept(inQuotes(request.state.name));
}

Answer getDeviceName(const Request& request) {
  Bytes reply{1};
  const Bytes name = bytesOf(request.state.name);
  reply.insert(reply.end(), name.begin(), name.end());
  return request.tell(inQuotes(request.state.name), std::move(reply));
}

Answer getDeviceVersion(const Request& request) {
  return request.tell(inQuotes(request.state.version), bytesOf(request.state.version));
}

Answer getSn(const Request& request) {
  return request.tell(inQuotes(request.state.serial), bytesOf(request.state.serial));
}

Answer getMac(const Request& request) {
  const auto& mac = request.state.network.mac;
  return request.tell(hex(mac), {mac.begin(), mac.end()});
}

// 18 bytes, which with the command byte in front make the 19 of the status block.
Answer getDeviceType(const Request& request) {
  const State& state = request.state;
  const bool positive = state.temperature >= 0;
  const int magnitude = std::min(std::abs(state.temperature), 127);
  Bytes status(18, 0);
  status[6] = state.date;
  status[7] = byteOf(state.boxDoorOpen);
  status[8] = byteOf(state.screenPowered);
  status[9] = state.screenOpen ? 1 : 2;
  status[10] = byteOf(positive);
  status[11] = static_cast<std::uint8_t>(magnitude);
  status[12] = byteOf(state.inputInside);
  status[15] = state.environmentBrightness;
  status[16] = static_cast<std::uint8_t>(state.brightnessMode);
  status[17] = state.brightness;
  return request.tell("screen " + onOff(state.screenOpen) + ", brightness " + levelText(state) +
                          ", " + std::to_string(positive ? magnitude : -magnitude) + " degrees",
                      std::move(status));
}

std::uint64_t freeBytes(const Storage& files) {
  return files.capacity() - std::min(files.used(), files.capacity());
}

// In kilobytes.
Answer getDeviceMemorySize(const Request& request) {
  const std::uint64_t total = request.files.capacity() / kKilobyte;
  const std::uint64_t left = freeBytes(request.files) / kKilobyte;
  Bytes reply;
  appendLowFirst(reply, total, 4);
  appendLowFirst(reply, left, 4);
  return request.tell(std::to_string(total) + " KB, " + std::to_string(left) + " free",
                      std::move(reply));
}

std::string megabytes(std::uint64_t bytes) { return std::to_string(bytes / kMegabyte) + "MB"; }

Answer getCpuAndMemoryInfo(const Request& request) {
  return tellJson(request, {{"cpuUsage", "7%"},
                            {"diskTotal", megabytes(request.files.capacity())},
                            {"diskFree", megabytes(freeBytes(request.files))}});
}

Answer getSystemInfo(const Request& request) {
  const State& state = request.state;
  return tellJson(request, {{"name", state.name},
                            {"version", state.version},
                            {"serial", state.serial},
                            {"restarts", state.restarts},
                            {"apps", state.maintenance.apps}});
}

Answer getSurveil(const Request& request) {
  const State& state = request.state;
  return tellJson(request, {{"temperature", state.temperature},
                            {"humidity", 40},
                            {"environmentBrightness", state.environmentBrightness},
                            {"doorOpen", state.boxDoorOpen}});
}

constexpr Row kRows[] = {
    {command("setDeviceName"), setDeviceName, {1, 1 + kMaxName}, beginsWith<0x00>},
    {command("getDeviceName"), getDeviceName, exactly(1), beginsWith<0x01>},
    {command("getDeviceVersion"), getDeviceVersion},
    {command("getSn"), getSn},
    {command("getMac"), getMac},
    {command("getDeviceType"), getDeviceType},
    {command("getDeviceMemorySize"), getDeviceMemorySize},
    {command("getCpuAndMemoryInfo"), getCpuAndMemoryInfo},
    {command("getSystemInfo"), getSystemInfo},
    {command("getSurveil"), getSurveil},
};

}  // namespace

std::span<const Row> identityRows() { return kRows; }

}  // namespace tovi::sim
