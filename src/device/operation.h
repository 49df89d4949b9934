// The shapes behind the device commands.
#pragma once

#include <climits>
#include <initializer_list>
#include <string>

#include <tovisdk/tovi_traffic.h>

#include "device/command_table.h"
#include "device/reply.h"

namespace tovi::device {

// How many bytes a reply must have to be of use.
struct Length {
  int least;
  int most = INT_MAX;
};
constexpr Length atLeast(int bytes) { return {bytes}; }
constexpr Length exactly(int bytes) { return {bytes, bytes}; }

// A payload of single bytes; of each number its low byte.
std::string bytes(std::initializer_list<int> values);

// One call of a public method, from its " start" line to its outcome.
class Operation {
 public:
  Operation(ToviTraffic& traffic, const Command& command);

  // Sends a setting: 1, or normalSet's negative code.
  int set(std::string payload = {});

  // Sends a query with the receive buffer of the command's row. No reply, or one of another length,
  // comes back as none.
  Reply ask(Length usable, std::string payload = {});

  // Ends the operation before anything is sent: says why in the log and gives -15.
  int refuse(const char* why);

 private:
  ToviTraffic& mTraffic;
  const Command& mCommand;
};

}  // namespace tovi::device
