// SPDX-License-Identifier: MIT
// A small host: sets the clock and the brightness of a controller and reads the brightness back.
//
//   first_exchange ADDRESS PORT [LEVEL]
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include <tovisdk/tovisdk.h>

namespace {

// Milliseconds since 1970.
long long now() {
  using namespace std::chrono;
  return duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) {
    std::fprintf(stderr, "usage: %s ADDRESS PORT [LEVEL]\n", argv[0]);
    return 2;
  }
  // Before anything is done; otherwise the log lies beside the executable.
  tovi_set_log_folder("first_exchange_log");

  ToviTraffic sign(argv[1], static_cast<unsigned short>(std::atoi(argv[2])));
  sign.setTimeout(2000);

  const int level = argc > 3 ? std::atoi(argv[3]) : 80;
  if (sign.setTimeAndTimeZone({now(), "Asia/Shanghai", "GMT+08:00"}) != 1 ||
      sign.setPower(true) != 1 || sign.setBrightness(level) != 1) {
    std::fprintf(stderr, "the sign does not follow: %s\n", toviOutcomeText(sign.lastOutcome()));
    return 1;
  }
  const std::unique_ptr<DeviceType> status(sign.getDeviceType());
  if (status == nullptr) {
    std::fprintf(stderr, "no status: %s\n", toviOutcomeText(sign.lastOutcome()));
    return 1;
  }
  std::printf("brightness %d, %d degrees\n", status->getScreenBrightness(),
              status->getTemperature());
  return status->getScreenBrightness() == level ? 0 : 1;
}
