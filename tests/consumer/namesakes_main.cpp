// SPDX-License-Identifier: MIT
// Frames, timetables and addresses as the library makes them, whatever namesakes.cpp does.
#include <tovisdk/flat.h>
#include <tovisdk/packet.h>
#include <tovisdk/tovi_traffic.h>

#include <cstdio>
#include <cstring>

int main() {
  tovi_set_log_level(4);
  char level[] = {2, 80};
  const char expected[] = "\xAA\xFF\xFF\x07\x02\x50\xCC\x38\x4A";
  int length = 0;
  char* frame = makeSendPacketEx(7, level, 2, 0, nullptr, &length);
  bool works = length == 9 && std::memcmp(frame, expected, 9) == 0;
  deleteArry(&frame);
  // Nobody listens on port 1.
  works = works && std::strcmp(setTime("127.0.0.1", 1, "126-2-1-6-0-0"), "failed") == 0;
  works = works && std::strcmp(setDeviceSecretParam("127.0.0.1", 1, "l 0 1", false), "failed") == 0;
  setDeviceNetBasicParam("127.0.0.1", 1, "1.2.3.4", "255.0.0.0", "1.2.3.1", 1, "1.2.3.2");
  ToviTraffic sign("127.0.0.1", 1);
  works = works && sign.sendPlayList(1, "text") == -14 && sign.getTimeAndTimeZone() == nullptr;
  std::printf("beside namesakes: %s\n", works ? "works" : "does not work");
  return works ? 0 : 1;
}
