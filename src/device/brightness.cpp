// SPDX-License-Identifier: MIT
// Brightness, by hand and by the ambient light, and volume.
#include "session/operation.h"

using namespace tovi;
using namespace tovi::session;

namespace {

constexpr int kManual = 2;
constexpr int kAutomatic = 1;
constexpr int kSubstitute = 125;

constexpr int kCurvePoints = 8;
constexpr int kCurveReplySize = 25;

std::string encode(const BrightnessItem& curve) {
  std::string payload;
  for (const BrightnessPoint& point : curve.points) {
    payload += bytes({point.environmentBrightness, point.screenBrightness, 0});
  }
  return payload;
}

BrightnessItem* newCurve(const Reply& reply) {
  BrightnessItem* curve = new BrightnessItem;
  for (int k = 0; k < kCurvePoints; ++k) {
    curve->points[k] = {reply.unsignedByte(3 * k + 1), reply.unsignedByte(3 * k + 2)};
  }
  return curve;
}

}  // namespace

int ToviTraffic::setBrightness(int level) {
  const bool valid = level >= 0 && level <= 255;
  return Operation(*this, "setBrightness").set(kManual, valid ? level : kSubstitute);
}

BrightnessInfo ToviTraffic::getBrightnessInfo() {
  return Operation(*this, "getBrightnessInfo")
      .ask(atLeast(3), BrightnessInfo(), [](const Reply& reply) {
        return BrightnessInfo{reply.signedByte(1), reply.unsignedByte(2)};
      });
}

int ToviTraffic::setBrightnessAuto(BrightnessItem* item) {
  Operation operation(*this, "setBrightnessAuto");
  if (item == nullptr) return operation.refuse("the curve is null");
  return operation.setAfter("setBrightness", bytes({kAutomatic, 0}), [&] { return encode(*item); });
}

BrightnessItem* ToviTraffic::getBrightnessAuto() {
  BrightnessItem* const none = nullptr;
  return Operation(*this, "getBrightnessAuto").ask(exactly(kCurveReplySize), none, newCurve);
}

bool ToviTraffic::setAutoBrightnessTimeParam(char first, char second) {
  Operation operation(*this, "setAutoBrightnessTimeParam");
  if (first == 0 || second == 0) {
    operation.refuse("neither value may be 0");
    return false;
  }
  const auto accepted = [&](const Reply& reply) {
    return reply.isOne(1) || operation.end(ToviOutcome::Rejected, false);
  };
  return operation.ask(atLeast(2), false, accepted, first, second);
}

int ToviTraffic::setDeviceVolume(int volume) {
  return Operation(*this, "setDeviceVolume").set(volume);
}

char ToviTraffic::getVolumeValue() {
  return static_cast<char>(Operation(*this, "getVolumeValue").askByte(1));
}
