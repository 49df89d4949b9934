// SPDX-License-Identifier: MIT
// Power of the screen, its boards, relays and cards.
#include <algorithm>

#include "simulator/shapes.h"

namespace tovi::sim {
namespace {

using wire::command;

Answer setPower(const Request& request) {
  return setPowerFlags(request, {&request.state.screenPowered, &request.state.screenOpen});
}

Answer setBoardPower(const Request& request) {
  return setPowerFlags(request, {&request.state.power.board});
}

// 0 for off, where its neighbours have 2.
Answer setBoardPowerAndScreenPower(const Request& request) {
  State& state = request.state;
  return setFlags(request, {&state.power.board, &state.screenPowered, &state.screenOpen});
}

Answer setMultiFunctionCardPower(const Request& request) {
  const View payload = request.payload;
  if (payload[2] > 1) return request.refuse();
  std::copy(payload.begin(), payload.end(), request.state.power.multiFunctionCard.begin());
  return request.accept("card " + std::to_string(payload[0]) + ", output " +
                        std::to_string(payload[1]) + " " + onOff(payload[2] == 1));
}

Answer setRelayPowers(const Request& request) {
  const View payload = request.payload;
  const auto known = [](std::uint8_t byte) { return byte == 1 || byte == 2; };
  if (!std::all_of(payload.begin(), payload.end(), known)) return request.refuse();
  std::string asked;
  for (std::size_t i = 0; i < payload.size(); ++i) {
    request.state.power.relays[i] = payload[i] == 1;
    asked += (i > 0 ? " " : "") + onOff(payload[i] == 1);
  }
  return request.accept(asked);
}

Answer getPowerState(const Request& request) {
  return tellFlag(request, request.state.screenPowered);
}

Answer getScreenStatus(const Request& request) {
  const bool open = request.state.screenOpen;
  return request.tell(onOff(open), {static_cast<std::uint8_t>(open ? 1 : 2)});
}

constexpr Row kRows[] = {
    {command("setPower"), setPower, exactly(1)},
    {command("setBoardPower"), setBoardPower, exactly(1)},
    {command("setBoardPowerAndScreenPower"), setBoardPowerAndScreenPower, exactly(1)},
    {command("setMultiFunctionCardPower"), setMultiFunctionCardPower, exactly(3)},
    {command("setRelayPowers"), setRelayPowers, exactly(4)},
    {command("getPowerState"), getPowerState},
    {command("getScreenStatus"), getScreenStatus},
};

}  // namespace

std::span<const Row> powerRows() { return kRows; }

}  // namespace tovi::sim
