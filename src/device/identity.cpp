// The status block.
#include <tovisdk/tovi_traffic.h>

#include <memory>

#include "device/operation.h"

using tovi::device::exactly;
using tovi::device::Operation;
using tovi::device::Reply;
using tovi::wire::command;

namespace {

constexpr int kStatusSize = 19;

// Controllers send one date value, and it stands for every field.
std::tm* newDate(int value) {
  std::tm* date = new std::tm{};
  date->tm_sec = date->tm_min = date->tm_hour = value;
  date->tm_mday = date->tm_mon = date->tm_year = value;
  return date;
}

}  // namespace

DeviceType* ToviTraffic::getDeviceType() {
  const Reply reply = Operation(*this, command("getDeviceType")).ask(exactly(kStatusSize));
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
