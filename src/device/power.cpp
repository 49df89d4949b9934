// SPDX-License-Identifier: MIT
// Power and relays.
#include "session/operation.h"

using namespace tovi::session;

namespace {

// Most switches of the controller know 1 and 2; a few take 1 and 0.
constexpr int onOrOff(bool on) { return on ? 1 : 2; }

}  // namespace

int ToviTraffic::setPower(bool on) { return Operation(*this, "setPower").set(onOrOff(on)); }

int ToviTraffic::setBoardPower(bool on) {
  return Operation(*this, "setBoardPower").set(onOrOff(on));
}

int ToviTraffic::setBoardPowerAndScreenPower(bool on) {
  return Operation(*this, "setBoardPowerAndScreenPower").set(on);
}

int ToviTraffic::setMultiFunctionCardPower(int a, int b, bool c) {
  return Operation(*this, "setMultiFunctionCardPower").set(a, b, c);
}

int ToviTraffic::setRelayPowers(bool relay1, bool relay2, bool relay3, bool relay4) {
  return Operation(*this, "setRelayPowers")
      .set(onOrOff(relay1), onOrOff(relay2), onOrOff(relay3), onOrOff(relay4));
}

int ToviTraffic::getPowerState() { return Operation(*this, "getPowerState").askFlag(); }

int ToviTraffic::getScreenStatus() {
  return Operation(*this, "getScreenStatus").ask(atLeast(2), -1, [](const Reply& reply) {
    return onOrOff(reply.isOne(1));
  });
}
