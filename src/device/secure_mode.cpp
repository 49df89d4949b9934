// The controller's own secure mode.
#include "session/operation.h"

using namespace tovi;
using namespace tovi::session;

namespace {

constexpr std::size_t kMaxLabel = 16;
constexpr std::size_t kKeyLength = 8;
constexpr char kSeparator[] = "\x91\x21";

}  // namespace

int ToviTraffic::getIsSecret() { return Operation(*this, "getIsSecret").askFlag(); }

bool ToviTraffic::setDeviceKey(const std::string& key) {
  return Operation(*this, "setDeviceKey").askFlag(key) == SUCCESS;
}

int ToviTraffic::setDeviceSecretParam(DeviceSecretParam param, bool includeSecondKey) {
  Operation operation(*this, "setDeviceSecretParam");
  if (param.label.empty() || param.label.size() > kMaxLabel) {
    return operation.refuse("the label is not 1 to 16 characters");
  }
  std::string payload = bytes({param.mode, param.enable}) + param.label + kSeparator;
  if (param.mode != 0) {
    if (param.key.size() != kKeyLength) return operation.refuse("the key is not 8 characters");
    payload += param.key;
  }
  if (includeSecondKey) {
    if (param.secondKey.size() != kKeyLength) {
      return operation.refuse("the second key is not 8 characters");
    }
    payload += kSeparator + param.secondKey;
  }
  const int result = operation.set(payload);
  // The controller's mode has changed.
  if (result == SUCCESS) operation.session().renewParser();
  return result;
}
