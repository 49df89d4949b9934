// Who the controller is and whether it is there: name, version, serial number, restart, secure
// mode.
#include "simulator/handlers.h"

namespace tovi::sim {
namespace {

using device::command;

std::string quoted(std::string_view text) { return '"' + printable(text) + '"'; }

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
  return request.accept(quoted(request.state.name));
}

Answer getDeviceName(const Request& request) {
  Bytes reply{1};
  const Bytes name = bytesOf(request.state.name);
  reply.insert(reply.end(), name.begin(), name.end());
  return request.tell(quoted(request.state.name), std::move(reply));
}

Answer getDeviceVersion(const Request& request) {
  return request.tell(quoted(request.state.version), bytesOf(request.state.version));
}

Answer getSn(const Request& request) {
  return request.tell(quoted(request.state.serial), bytesOf(request.state.serial));
}

Answer getIsSecret(const Request& request) {
  const bool secret = request.state.secret;
  return request.tell(secret ? "secure mode" : "plain mode",
                      {static_cast<std::uint8_t>(secret ? 1 : 0)});
}

constexpr Row kRows[] = {
    {command("sendHeartBeat"), sendHeartBeat},
    {command("restartDevice"), restartDevice},
    {command("setDeviceName"), setDeviceName, 0x00},
    {command("getDeviceName"), getDeviceName, 0x01},
    {command("getDeviceVersion"), getDeviceVersion},
    {command("getSn"), getSn},
    {command("getIsSecret"), getIsSecret},
};

}  // namespace

std::span<const Row> identityRows() { return kRows; }

}  // namespace tovi::sim
