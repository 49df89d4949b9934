// Who the controller is and how it is.
#include <charconv>
#include <memory>

#include "device/json_reply.h"
#include "session/operation.h"

using namespace tovi;
using namespace tovi::session;
using tovi::device::JsonReply;

namespace {

constexpr int kStatusSize = 19;

// Controllers send one date value, and it stands for every field.
std::tm* newDate(int value) {
  std::tm* date = new std::tm{};
  date->tm_sec = date->tm_min = date->tm_hour = value;
  date->tm_mday = date->tm_mon = date->tm_year = value;
  return date;
}

std::string lowerHex(int value) {
  char digits[2];
  const auto [end, error] = std::to_chars(digits, digits + sizeof digits, value, 16);
  return std::string(digits, end);
}

}  // namespace

int ToviTraffic::setDeviceName(const char* name) {
  Operation operation(*this, "setDeviceName");
  if (name == nullptr) return operation.refuse("name is null");
  return operation.set(bytes({0}) + name);
}

char* ToviTraffic::getDeviceName() {
  return Operation(*this, "getDeviceName").ask(atLeast(3), bytes({1})).newText(2);
}

char* ToviTraffic::getDeviceVersion() {
  return Operation(*this, "getDeviceVersion").ask(atLeast(1)).newText(1);
}

std::string ToviTraffic::getSn() { return Operation(*this, "getSn").ask(atLeast(1)).text(1); }

std::string ToviTraffic::getMac() {
  const Reply reply = Operation(*this, "getMac").ask(exactly(7));
  std::string text;
  for (int n = 1; n < reply.size(); ++n) {
    if (n > 1) text += ':';
    text += lowerHex(reply.unsignedByte(n));
  }
  return text;
}

DeviceType* ToviTraffic::getDeviceType() {
  const Reply reply = Operation(*this, "getDeviceType").ask(exactly(kStatusSize));
  if (!reply) return nullptr;
  std::unique_ptr<DeviceType> status(new DeviceType);
  status->setDate(newDate(reply.signedByte(7)));
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

DeviceMemorySize ToviTraffic::getDeviceMemorySize() {
  const Reply reply = Operation(*this, "getDeviceMemorySize").ask(atLeast(9));
  DeviceMemorySize size;
  if (reply) size = {reply.integer(1), reply.integer(5)};
  return size;
}

CpuAndMemoryInfo ToviTraffic::getCpuAndMemoryInfo() {
  const JsonReply reply(Operation(*this, "getCpuAndMemoryInfo"));
  return {reply.result(), reply.text("cpuUsage"), reply.text("diskTotal"), reply.text("diskFree")};
}

std::string ToviTraffic::getSystemInfo() { return Operation(*this, "getSystemInfo").askText(); }

std::string ToviTraffic::getSurveil() { return Operation(*this, "getSurveil").askText(); }
