// SPDX-License-Identifier: MIT
// Everything a controller remembers, but for its files. Texts are in whatever encoding the host
// sent.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "simulator/bytes.h"
#include "simulator/cipher.h"

namespace tovi::sim {

enum class BrightnessMode : std::uint8_t { Automatic = 1, Manual = 2, Timetable = 3 };

struct Power {
  bool board = true;
  std::array<bool, 4> relays{};
  std::array<std::uint8_t, 3> multiFunctionCard{};  // the last setting, as it came
};

// As they came, the number of entries first: a getter tells the very bytes that were set.
struct Timetables {
  Bytes power{0};
  Bytes play{0};
  Bytes brightness{0};
  Bytes brightnessCurve = Bytes(24, 0);  // eight times environment, screen, 0
  std::array<std::uint8_t, 2> automaticTimes{};
  std::string advance;  // empty: none

  friend bool operator==(const Timetables&, const Timetables&) = default;
};

struct Display {
  struct Mode {
    int width = 256;
    int height = 128;
    int rate = 60;
  };
  Mode mode;
  Mode edid;
  int videoSource = 0;
  std::array<bool, 3> antiAliasing{};
  bool syncPlay = false;
  bool preStoredScreen = false;
  std::string font = "Sans";
  std::vector<std::pair<int, int>> badPixels{{3, 1}, {17, 8}};
  bool pixelsTested = false;
  std::optional<std::size_t> screenshotSize;  // in bytes; without one, a whole picture
};

struct Network {
  struct Basic {
    std::array<std::uint8_t, 4> ip{192, 168, 1, 100};
    std::array<std::uint8_t, 4> netmask{255, 255, 255, 0};
    std::array<std::uint8_t, 4> gateway{192, 168, 1, 1};
    std::uint16_t port = 5005;
    std::array<std::uint8_t, 4> server{};
  } basic;
  std::array<std::uint8_t, 6> mac{0x02, 0x00, 0x5E, 0x00, 0x53, 0x01};
  bool wifi = false;
  bool accessPoint = false;
  std::string accessPointConfig = R"({"ssid":"tovisim","password":""})";
  std::string wifiConnection;  // as given to connectWifi
  struct VirtualConnection {
    bool enabled = false;
    std::uint16_t interval = 60;
    std::uint8_t value = 0;
  } virtualConnection;
  std::string pingAddress = "127.0.0.1";
  std::vector<std::string> whitelist;
  std::string servers = "[]";
  bool softSim = false;
  std::string lora = "{}";
  Bytes rdsRoad;
};

struct WallClock {
  long long time = 1'700'000'000'000;  // milliseconds since 1970 UTC; stands still until set
  std::string zone = "UTC";
  std::string offset = "GMT+00:00";
  bool ntp = false;
  std::string ntpServer = "pool.ntp.org";
};

struct Security {
  Key key;                // that the controller holds; without a cipher it talks plain
  std::string deviceKey;  // the last one given while it talked plain
  std::string label;
  std::string secondKey;
};

struct Maintenance {
  std::uint8_t closeTemperature = 85;  // degrees that turn the screen off
  bool ssh = false;
  std::uint8_t solidified = 0;
  std::optional<long long> backup;  // when the last one was made, on the controller's clock
  unsigned cachesCleared = 0;
  std::vector<std::string> apps{"player", "settings"};
  std::string sensors = "{}";
};

struct Content {
  std::optional<int> playing;                   // number of the playlist
  std::map<std::uint8_t, std::string> updates;  // by type
  std::map<std::uint8_t, std::string> testUpdates;
  std::string updateName;
  std::string downloadAddress;
  std::string downloadList;
  int downloadSteps = 3;  // "in progress" so many times before "done"
};

struct State {
  bool screenOpen = true;
  bool screenPowered = true;
  BrightnessMode brightnessMode = BrightnessMode::Manual;
  std::uint8_t brightness = 80;
  std::uint8_t environmentBrightness = 120;
  std::uint8_t volume = 50;
  int temperature = 25;  // degrees, -127 to 127
  bool boxDoorOpen = false;
  bool inputInside = true;
  std::uint8_t date = 1;  // the one date value of the status block
  std::string name = "tovisim";
  std::string version = "SIM-1.0.0";
  std::string serial = "SIM0000000001";
  unsigned restarts = 0;
  unsigned heartBeats = 0;

  Power power;
  Timetables timetables;
  Display display;
  Network network;
  WallClock clock;
  Security security;
  Maintenance maintenance;
  Content content;
};

}  // namespace tovi::sim
