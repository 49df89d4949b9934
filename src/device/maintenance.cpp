// SPDX-License-Identifier: MIT
// Restart, clean state, and what only service staff use.
#include <memory>

#include "foundation/bytes.h"
#include "session/operation.h"

using namespace tovi;
using namespace tovi::session;

namespace {

constexpr int kMaxCloseTemperature = 150;

// The first byte of commands that both set and query.
constexpr int kQuery = 0;
constexpr int kSet = 1;

}  // namespace

int ToviTraffic::restartDevice() { return Operation(*this, "restartDevice").set(); }

void ToviTraffic::sendHeartBeat() { Operation(*this, "sendHeartBeat").set(0); }

int ToviTraffic::setCloseScreenTemperature(int temperature) {
  Operation operation(*this, "setCloseScreenTemperature");
  if (temperature < 0 || temperature > kMaxCloseTemperature) {
    return operation.refuse("the temperature is not 0 to 150");
  }
  return operation.set(0, 0, 0, 0, 0, temperature);
}

int ToviTraffic::getCloseScreenTemperature() {
  Operation operation(*this, "getCloseScreenTemperature");
  const int value = operation.askByte(6);
  return operation.outcome() == ToviOutcome::BadReply ? SEND_NOT_RECV_ERROR : value;
}

int ToviTraffic::solidify(unsigned char value) {
  return Operation(*this, "solidify").confirm(value);
}

int ToviTraffic::backups() { return Operation(*this, "backups").confirmAt(3, kSet); }

BackUpsInfo* ToviTraffic::getBackupsTimes() {
  Operation operation(*this, "getBackupsTimes");
  BackUpsInfo* const none = nullptr;
  return operation.guarded(none, [&] {
    auto info = std::make_unique<BackUpsInfo>();
    const auto decode = [&](const Reply& reply) {
      if (reply.signedByte(3) == 1) info->times = hexText(reply.from(4));
      info->state = reply.signedByte(3);
      return true;
    };
    operation.ask(atLeast(5), false, decode, kQuery);
    return info.release();
  });
}

int ToviTraffic::setSSHEnabled(bool on) {
  return Operation(*this, "setSSHEnabled").confirm(kSet, on);
}

int ToviTraffic::getSSHEnabled() {
  Operation operation(*this, "getSSHEnabled");
  const auto enabled = [&](const Reply& reply) {
    if (reply.unsignedByte(2) != 0) return operation.end(ToviOutcome::Rejected, -1);
    return reply.unsignedByte(3) != 0 ? 1 : 0;
  };
  return operation.ask(atLeast(4), -1, enabled, kQuery);
}

std::string ToviTraffic::getLogZipPath() { return Operation(*this, "getLogZipPath").askText(); }

int ToviTraffic::setSensorInfo(const std::string& info) {
  return Operation(*this, "setSensorInfo").setText(info);
}

std::string ToviTraffic::getSensorInfo() { return Operation(*this, "getSensorInfo").askText(); }

int ToviTraffic::removeAppPageName(const std::string& package) {
  Operation operation(*this, "removeAppPageName");
  return package.empty() ? operation.refuse("the name is empty") : operation.setText(package);
}

int ToviTraffic::clearCache() { return Operation(*this, "clearCache").confirm(); }
