// SPDX-License-Identifier: MIT
// Uses something of each public header; succeeds when nobody listens, as nobody does on port 1.
#include <tovisdk/tovisdk.h>

#include <cstdio>
#include <cstring>

int main() {
  tovi_set_log_level(4);
  ToviTraffic sign("127.0.0.1", 1);
  sign.setTimeout(1000);
  char number[4];
  intToBytes(number, 0, 80);
  const bool works = sign.setBrightness(bytesToInt(number, 0)) == -14 &&
                     sign.lastOutcome() == ToviOutcome::NoConnection &&
                     std::strcmp(toviOutcomeText(sign.lastOutcome()), "no connection") == 0 &&
                     split("a,b", ",").size() == 2 && DeviceType().getDate() == nullptr;
  std::printf("tovisdk %s: %s\n", tovi_version(), works ? "works" : "does not work");
  return works ? 0 : 1;
}
