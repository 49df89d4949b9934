// SPDX-License-Identifier: MIT
// Power and relays.
#include "flat/flat_face.h"

#include "flat/call.h"

using namespace tovi::flat;

const char* setPower(const char* ip, unsigned short port, unsigned char on) {
  return status({__func__, ip, port}, &ToviTraffic::setPower, on);
}

const char* setBoardPower(const char* ip, unsigned short port, unsigned char on) {
  return status({__func__, ip, port}, &ToviTraffic::setBoardPower, on);
}

const char* setBoardPowerAndScreenPower(const char* ip, unsigned short port, unsigned char on) {
  return status({__func__, ip, port}, &ToviTraffic::setBoardPowerAndScreenPower, on);
}

const char* setMultiFunctionCardPower(const char* ip, unsigned short port, int a, int b,
                                      unsigned char c) {
  return status({__func__, ip, port}, &ToviTraffic::setMultiFunctionCardPower, a, b, c);
}

const char* setRelayPowers(const char* ip, unsigned short port, unsigned char relay1,
                           unsigned char relay2, unsigned char relay3, unsigned char relay4) {
  return status({__func__, ip, port}, &ToviTraffic::setRelayPowers, relay1, relay2, relay3, relay4);
}

// Its record names it otherwise; readers of these logs know it so.
const char* getScreenStatus(const char* ip, unsigned short port) {
  return withSession<const char*>({"getScreenState", ip, port}, kFailed, [](ToviTraffic& session) {
    switch (session.getScreenStatus()) {
      case 1:
        return "open";
      case 2:
        return "close";
      default:
        return kFailed;
    }
  });
}
