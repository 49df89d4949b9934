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

}  // namespace

int ToviTraffic::setBrightness(int level) {
  const bool valid = level >= 0 && level <= 255;
  return Operation(*this, "setBrightness").set(bytes({kManual, valid ? level : kSubstitute}));
}

BrightnessInfo ToviTraffic::getBrightnessInfo() {
  const Reply reply = Operation(*this, "getBrightnessInfo").ask(atLeast(3));
  BrightnessInfo info;
  if (reply) info = {reply.signedByte(1), reply.unsignedByte(2)};
  return info;
}

int ToviTraffic::setBrightnessAuto(BrightnessItem* item) {
  Operation operation(*this, "setBrightnessAuto");
  if (item == nullptr) return operation.refuse("the curve is null");
  std::string payload;
  for (const BrightnessPoint& point : item->points) {
    payload += bytes({point.environmentBrightness, point.screenBrightness, 0});
  }
  return operation.setAfter("setBrightness", bytes({kAutomatic, 0}), payload);
}

BrightnessItem* ToviTraffic::getBrightnessAuto() {
  const Reply reply = Operation(*this, "getBrightnessAuto").ask(exactly(kCurveReplySize));
  if (!reply) return nullptr;
  BrightnessItem* item = new BrightnessItem;
  for (int k = 0; k < kCurvePoints; ++k) {
    item->points[k] = {reply.unsignedByte(3 * k + 1), reply.unsignedByte(3 * k + 2)};
  }
  return item;
}

bool ToviTraffic::setAutoBrightnessTimeParam(char first, char second) {
  Operation operation(*this, "setAutoBrightnessTimeParam");
  if (first == 0 || second == 0) {
    operation.refuse("neither value may be 0");
    return false;
  }
  const Reply reply = operation.ask(atLeast(2), bytes({first, second}));
  if (!reply) return false;
  return reply.isOne(1) || operation.end(ToviOutcome::Rejected, false);
}

int ToviTraffic::setDeviceVolume(int volume) {
  return Operation(*this, "setDeviceVolume").set(bytes({volume}));
}

char ToviTraffic::getVolumeValue() {
  return static_cast<char>(Operation(*this, "getVolumeValue").askByte(1));
}
