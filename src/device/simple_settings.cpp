// Power, brightness, volume and identity: settings and queries of a few bytes.
#include <tovisdk/codec.h>
#include <tovisdk/tovi_traffic.h>

#include <charconv>

#include "device/operation.h"

using tovi::device::atLeast;
using tovi::device::bytes;
using tovi::device::exactly;
using tovi::device::Operation;
using tovi::device::Reply;
using tovi::wire::command;

namespace {

constexpr int kManualBrightness = 2;
constexpr int kSubstituteBrightness = 125;
constexpr int kUnknownVolume = 0xFF;

// Most switches of the controller know 1 and 2; a few take 1 and 0.
constexpr int onOrOff(bool on) { return on ? 1 : 2; }

std::string lowerHex(int value) {
  char digits[2];
  const auto [end, error] = std::to_chars(digits, digits + sizeof digits, value, 16);
  return std::string(digits, end);
}

}  // namespace

int ToviTraffic::setPower(bool on) {
  return Operation(*this, command("setPower")).set(bytes({onOrOff(on)}));
}

int ToviTraffic::setBoardPower(bool on) {
  return Operation(*this, command("setBoardPower")).set(bytes({onOrOff(on)}));
}

int ToviTraffic::setBoardPowerAndScreenPower(bool on) {
  return Operation(*this, command("setBoardPowerAndScreenPower")).set(bytes({on}));
}

int ToviTraffic::setMultiFunctionCardPower(int a, int b, bool c) {
  return Operation(*this, command("setMultiFunctionCardPower")).set(bytes({a, b, c}));
}

int ToviTraffic::setRelayPowers(bool relay1, bool relay2, bool relay3, bool relay4) {
  return Operation(*this, command("setRelayPowers"))
      .set(bytes({onOrOff(relay1), onOrOff(relay2), onOrOff(relay3), onOrOff(relay4)}));
}

int ToviTraffic::getPowerState() { return Operation(*this, command("getPowerState")).askFlag(); }

int ToviTraffic::getScreenStatus() {
  const Reply reply = Operation(*this, command("getScreenStatus")).ask(atLeast(2));
  if (!reply) return -1;
  return onOrOff(reply.isOne(1));
}

int ToviTraffic::setBrightness(int level) {
  const bool valid = level >= 0 && level <= 255;
  return Operation(*this, command("setBrightness"))
      .set(bytes({kManualBrightness, valid ? level : kSubstituteBrightness}));
}

BrightnessInfo ToviTraffic::getBrightnessInfo() {
  const Reply reply = Operation(*this, command("getBrightnessInfo")).ask(atLeast(3));
  BrightnessInfo info;
  if (reply) info = {reply.signedByte(1), reply.unsignedByte(2)};
  return info;
}

int ToviTraffic::setDeviceVolume(int volume) {
  return Operation(*this, command("setDeviceVolume")).set(bytes({volume}));
}

char ToviTraffic::getVolumeValue() {
  return static_cast<char>(Operation(*this, command("getVolumeValue")).askByte(1, kUnknownVolume));
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

std::string ToviTraffic::getMac() {
  const Reply reply = Operation(*this, command("getMac")).ask(exactly(7));
  std::string text;
  for (int n = 1; n < reply.size(); ++n) {
    if (n > 1) text += ':';
    text += lowerHex(reply.unsignedByte(n));
  }
  return text;
}
