// SPDX-License-Identifier: MIT
// Brightness by hand and by the ambient light, and the volume.
#include "cli/records.h"
#include "cli/themes.h"

namespace tovi::cli {
namespace {

Json shown(const BrightnessInfo& info) {
  return {{"mode", brightnessMode(info.mode)}, {"brightness", info.brightness}};
}

Json shown(const BrightnessItem& curve) {
  Json points = Json::array();
  for (const BrightnessPoint& point : curve.points) {
    points.push_back({{"environmentBrightness", point.environmentBrightness},
                      {"screenBrightness", point.screenBrightness}});
  }
  return points;
}

Json shownVolume(const char& volume) { return static_cast<unsigned char>(volume); }

BrightnessItem parseCurve(const std::vector<std::string>& words) {
  BrightnessItem curve;
  if (words.empty() || words.size() % 2 != 0 || words.size() > 2 * std::size(curve.points)) {
    throw Unusable("a curve has 1 to 8 pairs");
  }
  for (std::size_t i = 0; i < words.size(); i += 2) {
    curve.points[i / 2] = {numberWithin(words[i], 0, 255), numberWithin(words[i + 1], 0, 255)};
  }
  return curve;
}

Argument<BrightnessItem> curve() {
  return {"AMBIENT SCREEN",
          "An ambient reading and the brightness at it, both 0 to 255.\n"
          "Further pairs follow, up to 8; missing ones are sent as 0 0",
          parseCurve, true};
}

Result setCurve(Call& call, BrightnessItem curve) {
  return ofCode(call.traffic, call.traffic.setBrightnessAuto(&curve));
}

}  // namespace

void addBrightness(Commands& commands) {
  commands.group("Brightness and volume");
  commands.add("setBrightness", "Set the brightness by hand", sets(&ToviTraffic::setBrightness),
               number("LEVEL", "0 (dark) to 255 (brightest)", 0, 255));
  commands.add("getBrightnessInfo", "Read brightness (0 to 255) and its mode",
               asks(&ToviTraffic::getBrightnessInfo, shown));
  commands.add({"setBrightnessAuto", {"setBrightness", "setBrightnessAuto"}},
               "Let the brightness follow the ambient light by this curve", setCurve, curve());
  commands.add("getBrightnessAuto", "Read the curve, a line per point: ambient, screen",
               asks(&ToviTraffic::getBrightnessAuto, shown));
  commands.add("setAutoBrightnessTimeParam", "Set the timing of automatic brightness",
               sets(&ToviTraffic::setAutoBrightnessTimeParam),
               number("FIRST", "The first value, 1 to 255", 1, 255),
               number("SECOND", "The second value, 1 to 255", 1, 255));
  commands.add("setDeviceVolume", "Set the volume", sets(&ToviTraffic::setDeviceVolume),
               number("VOLUME", "0 (silent) to 255 (loudest)", 0, 255));
  commands.add("getVolumeValue", "Read the volume, 0 to 255",
               asks(&ToviTraffic::getVolumeValue, shownVolume));
}

}  // namespace tovi::cli
