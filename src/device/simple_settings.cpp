// Settings and queries of a few bytes.
#include <tovisdk/tovi_traffic.h>

#include "device/operation.h"

using tovi::device::atLeast;
using tovi::device::bytes;
using tovi::device::command;
using tovi::device::Operation;
using tovi::device::Reply;

namespace {

constexpr int kManualBrightness = 2;
constexpr int kSubstituteBrightness = 125;
constexpr int kUnknownVolume = 0xFF;

// Most switches of the controller know 1 and 2; a few take 1 and 0.
constexpr int onOrOff(bool on) { return on ? 1 : 2; }

}  // namespace

int ToviTraffic::setPower(bool on) {
  return Operation(*this, command("setPower")).set(bytes({onOrOff(on)}));
}

int ToviTraffic::setBrightness(int level) {
  const bool valid = level >= 0 && level <= 255;
  return Operation(*this, command("setBrightness"))
      .set(bytes({kManualBrightness, valid ? level : kSubstituteBrightness}));
}

int ToviTraffic::setDeviceVolume(int volume) {
  return Operation(*this, command("setDeviceVolume")).set(bytes({volume}));
}

char ToviTraffic::getVolumeValue() {
  const Reply reply = Operation(*this, command("getVolumeValue")).ask(atLeast(2));
  return static_cast<char>(reply ? reply.unsignedByte(1) : kUnknownVolume);
}

int ToviTraffic::setDeviceName(const char* name) {
  Operation operation(*this, command("setDeviceName"));
  if (name == nullptr) return operation.refuse("name is null");
  return operation.set(bytes({0}) + name);
}

char* ToviTraffic::getDeviceName() {
  return Operation(*this, command("getDeviceName")).ask(atLeast(3), bytes({1})).newText(2);
}

char* ToviTraffic::getDeviceVersion() {
  return Operation(*this, command("getDeviceVersion")).ask(atLeast(1)).newText(1);
}

std::string ToviTraffic::getSn() {
  return Operation(*this, command("getSn")).ask(atLeast(1)).text(1);
}

int ToviTraffic::restartDevice() { return Operation(*this, command("restartDevice")).set(); }

void ToviTraffic::sendHeartBeat() { Operation(*this, command("sendHeartBeat")).set(bytes({0})); }
