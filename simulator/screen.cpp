// What the screen shows of its state: brightness, sound and the status block.
#include <algorithm>
#include <cstdlib>

#include "simulator/shapes.h"

namespace tovi::sim {
namespace {

using wire::command;

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

Answer setBrightness(const Request& request) {
  const View payload = request.payload;
  if (payload[0] < 1 || payload[0] > 3) return request.refuse();

  State& state = request.state;
  state.brightnessMode = static_cast<BrightnessMode>(payload[0]);
  if (state.brightnessMode != BrightnessMode::Manual) {
    return request.accept(std::string(modeText(state.brightnessMode)));
  }
  state.brightness = payload[1];
  return request.accept("level " + levelText(state));
}

Answer getBrightnessInfo(const Request& request) {
  const State& state = request.state;
  return request.tell("brightness " + levelText(state),
                      {static_cast<std::uint8_t>(state.brightnessMode), state.brightness});
}

Answer setDeviceVolume(const Request& request) {
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

constexpr Row kRows[] = {
    {command("getDeviceType"), getDeviceType},
    {command("setBrightness"), setBrightness, exactly(2)},
    {command("getBrightnessInfo"), getBrightnessInfo},
    {command("setDeviceVolume"), setDeviceVolume, exactly(1)},
    {command("getVolumeValue"), getVolumeValue},
};

}  // namespace

std::span<const Row> screenRows() { return kRows; }

}  // namespace tovi::sim
