// SPDX-License-Identifier: MIT
// Settings and queries of the shapes that recur, and how values read in a line.
#pragma once

#include <initializer_list>

#include "simulator/handlers.h"

namespace tovi::sim {

// "on" or "off".
std::string onOff(bool on);

// A stranger's text in quotation marks, cut when long.
std::string inQuotes(std::string_view text);

inline std::uint8_t byteOf(bool flag) { return flag ? 1 : 0; }
inline std::uint16_t lowFirst(View bytes) {
  return static_cast<std::uint16_t>(bytes[0] | bytes[1] << 8);
}
void appendLowFirst(Bytes& bytes, std::uint64_t value, int size);

// "automatic", "manual" or "by timetable"; and with the level in front: "80 (manual)".
std::string_view modeText(BrightnessMode mode);
std::string levelText(const State& state);

// Commands with a switch in front of the payload: 1 does something, 0 asks. The reply repeats it.
inline constexpr std::uint8_t kAsk = 0;
inline constexpr std::uint8_t kDo = 1;
Bytes refuseBehindSwitch(View payload);

// One byte, 1 for on and 0 for off; and told as such.
Answer setFlags(const Request& request, std::initializer_list<bool*> flags);
Answer tellFlag(const Request& request, bool flag);

// One byte, 1 for on and 2 for off.
Answer setPowerFlags(const Request& request, std::initializer_list<bool*> flags);

// The payload is the text; told behind a status of 1, with a zero byte at its end.
Answer setText(const Request& request, std::string& text);
Answer tellText(const Request& request, std::string_view text);

// Handlers of such a text or flag of the network, by its name.
template <std::string Network::*kText>
Answer setNetworkText(const Request& request) {
  return setText(request, request.state.network.*kText);
}
template <std::string Network::*kText>
Answer tellNetworkText(const Request& request) {
  return tellText(request, request.state.network.*kText);
}
template <bool Network::*kFlag>
Answer setNetworkFlag(const Request& request) {
  return setFlags(request, {&(request.state.network.*kFlag)});
}
template <bool Network::*kFlag>
Answer tellNetworkFlag(const Request& request) {
  return tellFlag(request, request.state.network.*kFlag);
}

}  // namespace tovi::sim
