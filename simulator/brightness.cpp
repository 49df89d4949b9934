// SPDX-License-Identifier: MIT
// Brightness, by hand and by the automatic curve, and the sound's volume.
#include <algorithm>

#include "simulator/shapes.h"

namespace tovi::sim {
namespace {

using wire::command;

constexpr std::size_t kCurveSize = 24;

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

std::string curveText(View curve) {
  std::string text;
  for (std::size_t i = 0; i < curve.size(); i += 3) {
    text += (i > 0 ? " " : "") + std::to_string(curve[i]) + ":" + std::to_string(curve[i + 1]);
  }
  return text;
}

Answer setBrightnessAuto(const Request& request) {
  Bytes& curve = request.state.timetables.brightnessCurve;
  curve.assign(request.payload.begin(), request.payload.end());
  return request.accept(curveText(curve));
}

Answer getBrightnessAuto(const Request& request) {
  const Bytes& curve = request.state.timetables.brightnessCurve;
  return request.tell(curveText(curve), curve);
}

Answer setAutoBrightnessTimeParam(const Request& request) {
  const View payload = request.payload;
  if (payload[0] == 0 || payload[1] == 0) return request.refuse();
  std::copy(payload.begin(), payload.end(), request.state.timetables.automaticTimes.begin());
  return request.accept(std::to_string(payload[0]) + " and " + std::to_string(payload[1]));
}

Answer setDeviceVolume(const Request& request) {
  request.state.volume = request.payload[0];
  return request.accept("volume " + std::to_string(request.state.volume));
}

Answer getVolumeValue(const Request& request) {
  const std::uint8_t volume = request.state.volume;
  return request.tell("volume " + std::to_string(volume), {volume});
}

constexpr Row kRows[] = {
    {command("setBrightness"), setBrightness, exactly(2)},
    {command("getBrightnessInfo"), getBrightnessInfo},
    {command("setBrightnessAuto"), setBrightnessAuto, exactly(kCurveSize)},
    {command("getBrightnessAuto"), getBrightnessAuto},
    {command("setAutoBrightnessTimeParam"), setAutoBrightnessTimeParam, exactly(2)},
    {command("setDeviceVolume"), setDeviceVolume, exactly(1)},
    {command("getVolumeValue"), getVolumeValue},
};

}  // namespace

std::span<const Row> brightnessRows() { return kRows; }

}  // namespace tovi::sim
