// SPDX-License-Identifier: MIT
// Enciphered traffic, on the controller's side.
#include <algorithm>

#include "cli/themes.h"

namespace tovi::cli {
namespace {

constexpr std::size_t kKeyBytes = 8;

struct SecureMode {
  int mode = 0;
  std::string key;  // empty in mode 0, which has none
};

SecureMode parseSecureMode(const std::string& given) {
  const std::size_t colon = std::min(given.find(':'), given.size());
  SecureMode mode{numberWithin(given.substr(0, colon), 0, 255),
                  given.substr(std::min(colon + 1, given.size()))};
  const bool keyless = mode.mode == 0 && colon == given.size();
  if (!keyless && (mode.mode == 0 || mode.key.size() != kKeyBytes)) {
    throw Unusable(quoted(given) + " is neither 0 nor a mode and a key as in 1:12345678");
  }
  return mode;
}

Argument<std::string> secondKey() {
  Argument<std::string> key = text("SECOND_KEY", "A second key of 8 bytes", kKeyBytes, kKeyBytes);
  key.required = false;
  return key;
}

Result setSecureMode(Call& call, const std::string& label, const SecureMode& mode, bool enable,
                     const std::string& secondKey) {
  const DeviceSecretParam param{label, mode.mode, enable, mode.key, secondKey};
  return ofCode(call.traffic, call.traffic.setDeviceSecretParam(param, !secondKey.empty()));
}

}  // namespace

void addSecureMode(Commands& commands) {
  commands.group("Secure mode");
  commands.add("getIsSecret", "Whether the controller expects enciphered traffic",
               asksFlag(&ToviTraffic::getIsSecret));
  commands.add("setDeviceKey", "Set the controller's key", sets(&ToviTraffic::setDeviceKey),
               text("KEY", "The key"));
  commands.add(
      "setDeviceSecretParam", "Configure secure mode", setSecureMode,
      text("LABEL", "1 to 16 bytes", 1, 16),
      argument("MODE", "0, or 1 to 255 with a key of 8 bytes, as in 1:12345678", parseSecureMode),
      onOff("STATE"), secondKey());
}

}  // namespace tovi::cli
