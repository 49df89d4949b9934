// The controller's own secure mode.
#include <tovisdk/tovi_traffic.h>

#include "device/operation.h"

using tovi::device::bytes;
using tovi::device::Operation;
using tovi::wire::command;

namespace {

constexpr std::size_t kMaxLabel = 16;
constexpr std::size_t kKeyLength = 8;
constexpr char kSeparator[] = "\x91\x21";

}  // namespace

int ToviTraffic::getIsSecret() { return Operation(*this, command("getIsSecret")).askFlag(); }

bool ToviTraffic::setDeviceKey(const std::string& key) {
  return Operation(*this, command("setDeviceKey")).askFlag(key) == SUCCESS;
}

int ToviTraffic::setDeviceSecretParam(DeviceSecretParam param, bool includeSecondKey) {
  Operation operation(*this, command("setDeviceSecretParam"));
  if (param.label.empty() || param.label.size() > kMaxLabel) {
    return operation.refuse("the label is not 1 to 16 characters");
  }
  std::string payload = bytes({param.mode, param.enable}) + param.label + kSeparator;
  if (param.mode != 0) {
    if (param.key.size() != kKeyLength) return operation.refuse("the key is not 8 characters");
    payload += param.key;
  }
  if (includeSecondKey) {
    if (param.secondKey.size() != kKeyLength)
      return operation.refuse("the second key is not 8 characters");
    payload += kSeparator;
    payload += param.secondKey;
  }
  const int result = operation.set(payload);
  // The controller's mode has changed: the next reply wants a parser made for the keys of then.
  if (result == SUCCESS && mProtocalParser != nullptr) {
    delete mProtocalParser;
    mProtocalParser = nullptr;
  }
  return result;
}
