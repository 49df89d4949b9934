// Resolution, timing, video input and fonts, and what else the display itself has to tell.
#include <tovisdk/tovi_traffic.h>

#include <cstdlib>

#include "device/operation.h"
#include "json/json_object.h"

using tovi::device::atLeast;
using tovi::device::bytes;
using tovi::device::Operation;
using tovi::device::Reply;
using tovi::wire::command;

namespace {

constexpr std::size_t kFontText = 1024;
constexpr std::size_t kTimingText = 4096;

// The JSON of a reply, and whether the controller accepted the question. Text that is no JSON gives
// an object without members, which makes every value empty or 0.
class JsonReply {
 public:
  explicit JsonReply(Operation operation)
      : mObject(operation.askText()), mAccepted(operation.outcome() == ToviOutcome::Done) {}

  int result() const { return mAccepted ? 1 : 0; }
  std::string text(const char* key) const { return mObject.valueText(key); }
  int number(const char* key) const { return std::atoi(text(key).c_str()); }

 private:
  CJsonObject mObject;
  bool mAccepted;
};

}  // namespace

int ToviTraffic::setCustomResolution(int width, int height, int refreshRate) {
  CJsonObject request;
  request.addInt("displayMode", 1);
  request.addInt("width", width);
  request.addInt("height", height);
  request.addInt("refreshRate", refreshRate);
  return Operation(*this, command("setCustomResolution")).setText(request.toText(), BIG_SIZE);
}

ResolutionInfo ToviTraffic::getCurrentResolution() {
  const JsonReply reply(Operation(*this, command("getCurrentResolution")));
  return {reply.result(), reply.text("value")};
}

int ToviTraffic::setEdidInfo(EdidInfo info) {
  CJsonObject request;
  request.addInt("fieldRate", info.fieldRate);
  request.addInt("width", info.width);
  request.addInt("height", info.height);
  return Operation(*this, command("setEdidInfo")).setText(request.toText(), BIG_SIZE);
}

EdidInfo ToviTraffic::getEdidInfo() {
  const JsonReply reply(Operation(*this, command("getEdidInfo")));
  return {reply.result(), reply.number("width"), reply.number("height"), reply.number("fieldRate")};
}

int ToviTraffic::setVideoControlInfo(int videoSource) {
  CJsonObject request;
  request.addText("isScale", "false");
  request.addInt("offsetX", 0);
  request.addInt("offsetY", 0);
  request.addInt("videoMode", 1);
  request.addInt("videoSource", videoSource);
  return Operation(*this, command("setVideoControlInfo")).setText(request.toText(), BIG_SIZE);
}

VideoControlInfo ToviTraffic::getVideoControlInfo() {
  const JsonReply reply(Operation(*this, command("getVideoControlInfo")));
  return {reply.result(), reply.number("videoSource")};
}

CpuAndMemoryInfo ToviTraffic::getCpuAndMemoryInfo() {
  const JsonReply reply(Operation(*this, command("getCpuAndMemoryInfo")));
  return {reply.result(), reply.text("cpuUsage"), reply.text("diskTotal"), reply.text("diskFree")};
}

DeviceSize ToviTraffic::getDeviceSize() {
  const Reply reply = Operation(*this, command("getDeviceSize")).ask(atLeast(5));
  DeviceSize size;
  if (reply) size = {reply.unsignedShort(1), reply.unsignedShort(3)};
  return size;
}

DeviceMemorySize ToviTraffic::getDeviceMemorySize() {
  const Reply reply = Operation(*this, command("getDeviceMemorySize")).ask(atLeast(9));
  DeviceMemorySize size;
  if (reply) size = {reply.integer(1), reply.integer(5)};
  return size;
}

void ToviTraffic::setAntiAliasing(bool first, bool second, bool third) {
  Operation(*this, command("setAntiAliasing")).set(bytes({first, second, third}));
}

TextAttr ToviTraffic::getAntiAliasing() {
  const Reply reply = Operation(*this, command("getAntiAliasing")).ask(atLeast(4));
  return {reply.isOne(1), reply.isOne(2), reply.isOne(3)};
}

bool ToviTraffic::setSyncPlay(bool on) {
  return Operation(*this, command("setSyncPlay")).set(bytes({on})) == SUCCESS;
}

bool ToviTraffic::getSyncPlay() {
  return Operation(*this, command("getSyncPlay")).set() == SUCCESS;
}

int ToviTraffic::setFont(const std::string& font) {
  return Operation(*this, command("setFont")).setText(font, kFontText);
}

int ToviTraffic::setAdvanceTiming(const std::string& timing) {
  return Operation(*this, command("setAdvanceTiming")).setText(timing, kTimingText);
}

int ToviTraffic::removeAdvanceTiming() {
  return Operation(*this, command("removeAdvanceTiming")).set(bytes({1}));
}
