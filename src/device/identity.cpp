// SPDX-License-Identifier: MIT
// Who the controller is and how it is.
#include <charconv>
#include <memory>

#include "device/json_reply.h"
#include "session/operation.h"

using namespace tovi::session;
using namespace tovi::device;

namespace {

constexpr int kStatusSize = 19;

// Controllers send one date value, and it stands for every field.
std::unique_ptr<std::tm> newDate(int value) {
  auto date = std::make_unique<std::tm>();
  date->tm_sec = date->tm_min = date->tm_hour = value;
  date->tm_mday = date->tm_mon = date->tm_year = value;
  return date;
}

DeviceType* newStatus(const Reply& reply) {
  auto date = newDate(reply.signedByte(7));
  auto status = std::make_unique<DeviceType>();
  status->setDate(date.release());
  status->setBoxDoorOpen(reply.isOne(8));
  status->setScreenPowerOpen(reply.isOne(9));
  status->setScreenOpen(reply.signedByte(10));
  status->setTemperature(reply.isOne(11) ? reply.signedByte(12) : -reply.signedByte(12));
  status->setInputSourceInside(reply.isOne(13));
  status->setEnvironmentBrightness(reply.unsignedByte(16));
  status->setBrightnessType(reply.signedByte(17));
  status->setScreenBrightness(reply.unsignedByte(18));
  return status.release();
}

// Without leading zeros: hosts compare these texts.
std::string addressText(const Reply& reply) {
  std::string text;
  for (int n = 1; n < reply.size(); ++n) {
    char digits[2];
    const auto end = std::to_chars(digits, digits + sizeof digits, reply.unsignedByte(n), 16).ptr;
    text.append(n > 1 ? ":" : "").append(digits, end);
  }
  return text;
}

}  // namespace

int ToviTraffic::setDeviceName(const char* name) {
  Operation operation(*this, "setDeviceName");
  if (name == nullptr) return operation.refuse("name is null");
  return operation.set(0, name);
}

char* ToviTraffic::getDeviceName() {
  char* const none = nullptr;
  const auto name = [](const Reply& reply) { return reply.newText(2); };
  return Operation(*this, "getDeviceName").ask(atLeast(3), none, name, 1);
}

char* ToviTraffic::getDeviceVersion() {
  char* const none = nullptr;
  return Operation(*this, "getDeviceVersion").ask(atLeast(1), none, [](const Reply& reply) {
    return reply.newText(1);
  });
}

std::string ToviTraffic::getSn() {
  return Operation(*this, "getSn").ask(atLeast(1), std::string(), [](const Reply& reply) {
    return reply.text(1);
  });
}

std::string ToviTraffic::getMac() {
  return Operation(*this, "getMac").ask(exactly(7), std::string(), addressText);
}

DeviceType* ToviTraffic::getDeviceType() {
  DeviceType* const none = nullptr;
  return Operation(*this, "getDeviceType").ask(exactly(kStatusSize), none, newStatus);
}

DeviceMemorySize ToviTraffic::getDeviceMemorySize() {
  return Operation(*this, "getDeviceMemorySize")
      .ask(atLeast(9), DeviceMemorySize(), [](const Reply& reply) {
        return DeviceMemorySize{reply.integer(1), reply.integer(5)};
      });
}

CpuAndMemoryInfo ToviTraffic::getCpuAndMemoryInfo() {
  return askJson<CpuAndMemoryInfo>(Operation(*this, "getCpuAndMemoryInfo"), [](JsonReply& reply) {
    return CpuAndMemoryInfo{0, reply.text("cpuUsage"), reply.text("diskTotal"),
                            reply.text("diskFree")};
  });
}

std::string ToviTraffic::getSystemInfo() { return Operation(*this, "getSystemInfo").askText(); }

std::string ToviTraffic::getSurveil() { return Operation(*this, "getSurveil").askText(); }
