// The screen: power, brightness, sound and the status block.
#include <algorithm>
#include <cstdlib>

#include "simulator/handlers.h"

namespace tovi::sim {
namespace {

using device::command;

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

// In a refusal, what was asked for cannot be put in words.
std::string raw(View payload) { return "payload " + (payload.empty() ? "none" : hex(payload, 16)); }

Answer setPower(const Request& request) {
  const View payload = request.payload;
  if (payload.size() != 1 || (payload[0] != 1 && payload[0] != 2)) {
    return request.refuse(raw(payload));
  }
  const bool on = payload[0] == 1;
  request.state.screenOpen = on;
  request.state.screenPowered = on;
  return request.accept(on ? "on" : "off");
}

Answer setBrightness(const Request& request) {
  const View payload = request.payload;
  if (payload.size() != 2 || payload[0] < 1 || payload[0] > 3) return request.refuse(raw(payload));

  State& state = request.state;
  state.brightnessMode = static_cast<BrightnessMode>(payload[0]);
  const std::string mode(modeText(state.brightnessMode));
  if (state.brightnessMode != BrightnessMode::Manual) return request.accept(mode);
  state.brightness = payload[1];
  return request.accept("level " + std::to_string(state.brightness) + " (" + mode + ")");
}

Answer setDeviceVolume(const Request& request) {
  if (request.payload.size() != 1) return request.refuse(raw(request.payload));
  request.state.volume = request.payload[0];
  return request.accept("volume " + std::to_string(request.state.volume));
}

Answer getVolumeValue(const Request& request) {
  const std::uint8_t volume = request.state.volume;
  return request.tell("volume " + std::to_string(volume), {volume});
}

// 18 bytes, which with the command byte in front make the 19 of the status block.
Answer getDeviceType(const Request& request) {
  const State& state = request.state;
  const bool positive = state.temperature >= 0;
  const int magnitude = std::min(std::abs(state.temperature), 127);
  const auto flag = [](bool value) { return static_cast<std::uint8_t>(value ? 1 : 0); };
  Bytes status(18, 0);
  status[6] = state.date;
  status[7] = flag(state.boxDoorOpen);
  status[8] = flag(state.screenPowered);
  status[9] = state.screenOpen ? 1 : 2;
  status[10] = flag(positive);
  status[11] = static_cast<std::uint8_t>(magnitude);
  status[12] = flag(state.inputInside);
  status[15] = state.environmentBrightness;
  status[16] = static_cast<std::uint8_t>(state.brightnessMode);
  status[17] = state.brightness;
  return request.tell("screen " + std::string(state.screenOpen ? "on" : "off") + ", brightness " +
                          std::to_string(state.brightness) + " (" +
                          std::string(modeText(state.brightnessMode)) + "), " +
                          std::to_string(positive ? magnitude : -magnitude) + " degrees",
                      std::move(status));
}

constexpr Row kRows[] = {
    {command("getDeviceType"), getDeviceType},   {command("setPower"), setPower},
    {command("setBrightness"), setBrightness},   {command("setDeviceVolume"), setDeviceVolume},
    {command("getVolumeValue"), getVolumeValue},
};

}  // namespace

std::span<const Row> screenRows() { return kRows; }

}  // namespace tovi::sim
