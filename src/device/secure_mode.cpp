// SPDX-License-Identifier: MIT
// The controller's own secure mode.
#include "session/operation.h"

using namespace tovi::session;

namespace {

constexpr std::size_t kMaxLabel = 16;
constexpr std::size_t kKeyLength = 8;
constexpr std::string_view kSeparator = "\x91\x21";

std::string encode(const DeviceSecretParam& param, bool includeSecondKey) {
  std::string payload = payloadOf(param.mode, param.enable, param.label, kSeparator);
  if (param.mode != 0) payload += param.key;
  if (includeSecondKey) payload.append(kSeparator).append(param.secondKey);
  return payload;
}

}  // namespace

int ToviTraffic::getIsSecret() { return Operation(*this, "getIsSecret").askFlag(); }

bool ToviTraffic::setDeviceKey(const std::string& key) {
  return Operation(*this, "setDeviceKey").confirm(key) == SUCCESS;
}

int ToviTraffic::setDeviceSecretParam(DeviceSecretParam param, bool includeSecondKey) {
  Operation operation(*this, "setDeviceSecretParam");
  if (param.label.empty() || param.label.size() > kMaxLabel) {
    return operation.refuse("the label is not 1 to 16 characters");
  }
  if (param.mode != 0 && param.key.size() != kKeyLength) {
    return operation.refuse("the key is not 8 characters");
  }
  if (includeSecondKey && param.secondKey.size() != kKeyLength) {
    return operation.refuse("the second key is not 8 characters");
  }
  const int result = operation.set([&] { return encode(param, includeSecondKey); });
  // The controller's mode has changed.
  if (result == SUCCESS) operation.session().renewParser();
  return result;
}
