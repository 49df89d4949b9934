// SPDX-License-Identifier: MIT
#include "simulator/shapes.h"

#include "tools/printable.h"

namespace tovi::sim {
namespace {

constexpr std::size_t kTextShown = 60;

}  // namespace

std::string onOff(bool on) { return on ? "on" : "off"; }

std::string inQuotes(std::string_view text) {
  if (text.size() <= kTextShown) return '"' + tools::printable(text) + '"';
  return '"' + tools::printable(text.substr(0, kTextShown)) + "\"... (" +
         std::to_string(text.size()) + " bytes)";
}

void appendLowFirst(Bytes& bytes, std::uint64_t value, int size) {
  for (int i = 0; i < size; ++i) bytes.push_back(static_cast<std::uint8_t>(value >> 8 * i & 0xFF));
}

std::string_view modeText(BrightnessMode mode) {
  switch (mode) {
    case BrightnessMode::Automatic:
      return "automatic";
    case BrightnessMode::Manual:
      return "manual";
    case BrightnessMode::Timetable:
      return "by timetable";
  }
  return "";
}

std::string levelText(const State& state) {
  return std::to_string(state.brightness) + " (" + std::string(modeText(state.brightnessMode)) +
         ")";
}

Bytes refuseBehindSwitch(View payload) { return {payload.empty() ? kAsk : payload[0], 0}; }

Answer setFlags(const Request& request, std::initializer_list<bool*> flags) {
  const bool on = request.payload[0] == 1;
  if (!on && request.payload[0] != 0) return request.refuse();
  for (bool* flag : flags) *flag = on;
  return request.accept(onOff(on));
}

Answer tellFlag(const Request& request, bool flag) {
  return request.tell(onOff(flag), {byteOf(flag)});
}

Answer setPowerFlags(const Request& request, std::initializer_list<bool*> flags) {
  const bool on = request.payload[0] == 1;
  if (!on && request.payload[0] != 2) return request.refuse();
  for (bool* flag : flags) *flag = on;
  return request.accept(onOff(on));
}

Answer setText(const Request& request, std::string& text) {
  text = textOf(request.payload);
  return request.accept(inQuotes(text));
}

Answer tellText(const Request& request, std::string_view text) {
  Bytes reply{1};
  reply.insert(reply.end(), text.begin(), text.end());
  reply.push_back(0);
  return request.tell(inQuotes(text), std::move(reply));
}

}  // namespace tovi::sim
