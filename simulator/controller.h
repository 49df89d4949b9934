// The controller itself: state and the answers to commands. Knows no sockets, frames or ciphers.
#pragma once

#include <functional>
#include <mutex>
#include <string>
#include <vector>

#include "simulator/wire.h"

namespace tovi::sim {

enum class BrightnessMode : std::uint8_t { Automatic = 1, Manual = 2, Timetable = 3 };

// Everything a controller remembers. Texts are in whatever encoding the host sent.
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
  bool secret = false;  // whether the controller holds a key
  unsigned restarts = 0;
  unsigned heartBeats = 0;
};

// What came of a command: the replies, and the same in words.
struct Answer {
  std::string method;  // "setBrightness"
  std::string asked;   // "level 80 (manual)"; may be empty
  std::string told;    // "accepted"
  std::vector<Message> replies;
};

// Safe to use from several threads.
class Controller {
 public:
  explicit Controller(State initial = {});

  Answer handle(const Message& request);

  // The answer of a controller that says no; nothing changes.
  Answer refuse(const Message& request) const;

  State state() const;

  // Changes what the device measures or was set to by other means.
  void change(const std::function<void(State&)>& edit);

 private:
  mutable std::mutex mMutex;
  State mState;
};

}  // namespace tovi::sim
