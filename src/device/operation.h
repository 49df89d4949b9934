// The shapes behind the device commands.
#pragma once

#include <climits>
#include <initializer_list>
#include <string>

#include <tovisdk/tovi_traffic.h>

#include "device/reply.h"
#include "wire/command_table.h"

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

// One call of a public method, from its " start" line to its outcome. Payloads that do not fit a
// frame are refused before anything is sent.
class Operation {
 public:
  Operation(ToviTraffic& traffic, const wire::Command& command);

  // Sends a setting: 1, or normalSet's negative code, or -15.
  int set(std::string payload = {});

  // Sends a setting of another command that this operation begins with.
  int step(const wire::Command& command, std::string payload);

  // Sends a text as a setting, unless it is longer than the controller's room for it.
  int setText(const std::string& text, std::size_t most);

  // Sends a query with the receive buffer of the command's row. No reply, or one of another length,
  // comes back as none.
  Reply ask(Length usable, std::string payload = {});

  // Sends a query whose reply says yes or no in byte 2: 1, 0, or -1 without a reply; -15 when
  // refused.
  int askFlag(std::string payload = {});

  // Sends a query whose reply holds a text behind a status byte; empty unless the status is 1.
  std::string askText(std::string payload = {});

  // Sends a query and gives one byte of its reply, signed; `otherwise` when there is none.
  int askByte(int n, int otherwise, std::string payload = {});

  // False, with the outcome of a refusal, when the payload does not fit a frame.
  bool fits(const std::string& payload);

  ToviOutcome outcome() const { return mTraffic.lastOutcome(); }

  // Ends the operation before anything is sent: says why in the log and gives -15.
  int refuse(const char* why);

 private:
  ToviTraffic& mTraffic;
  const wire::Command& mCommand;
};

}  // namespace tovi::device
