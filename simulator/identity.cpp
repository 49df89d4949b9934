// Who the controller is and whether it is there: name, version, serial number, hardware address,
// restart.
#include "simulator/shapes.h"

namespace tovi::sim {
namespace {

using wire::command;

constexpr std::size_t kMaxName = 255;

Answer sendHeartBeat(const Request& request) {
  ++request.state.heartBeats;
  return request.keepQuiet();
}

Answer restartDevice(const Request& request) {
  ++request.state.restarts;
  return request.accept();
}

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

constexpr Row kRows[] = {
    {command("sendHeartBeat"), sendHeartBeat, atLeast(0)},
    {command("restartDevice"), restartDevice},
    {command("setDeviceName"), setDeviceName, {1, 1 + kMaxName}, beginsWith<0x00>},
    {command("getDeviceName"), getDeviceName, exactly(1), beginsWith<0x01>},
    {command("getDeviceVersion"), getDeviceVersion},
    {command("getSn"), getSn},
    {command("getMac"), getMac},
};

}  // namespace

std::span<const Row> identityRows() { return kRows; }

}  // namespace tovi::sim
