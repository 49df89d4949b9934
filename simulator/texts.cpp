// What the controller measures and tells of itself: memory, processor, system, surveillance, logs.
#include "simulator/json.h"
#include "simulator/shapes.h"

namespace tovi::sim {
namespace {

using wire::command;

constexpr std::uint64_t kKilobyte = 1024;
constexpr std::uint64_t kMegabyte = 1024 * kKilobyte;

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

Answer getLogZipPath(const Request& request) { return tellText(request, "/log/tovisim.zip"); }

constexpr Row kRows[] = {
    {command("getDeviceMemorySize"), getDeviceMemorySize},
    {command("getCpuAndMemoryInfo"), getCpuAndMemoryInfo},
    {command("getSystemInfo"), getSystemInfo},
    {command("getSurveil"), getSurveil},
    {command("getLogZipPath"), getLogZipPath},
};

}  // namespace

std::span<const Row> textRows() { return kRows; }

}  // namespace tovi::sim
