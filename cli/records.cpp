// SPDX-License-Identifier: MIT
#include "cli/records.h"

namespace tovi::cli {

Json shown(const std::string& text) { return text; }
Json shown(const int& number) { return number; }
Json shown(const std::list<std::string>& texts) { return Json(texts); }

int playlistNumber(int signedByte) { return signedByte & 0xFF; }

Json brightnessMode(int mode) {
  switch (mode) {
    case 1:
      return "automatic";
    case 2:
      return "manual";
    case 3:
      return "timetable";
    default:
      return mode;
  }
}

}  // namespace tovi::cli
