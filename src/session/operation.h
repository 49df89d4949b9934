// The shapes behind the commands.
#pragma once

#include <climits>
#include <string>

#include "foundation/bytes.h"
#include "session/call.h"
#include "session/reply.h"
#include "wire/command_table.h"

namespace tovi::session {

// How many bytes a reply must have to be of use.
struct Length {
  int least;
  int most = INT_MAX;
};
constexpr Length atLeast(int size) { return {size}; }
constexpr Length exactly(int size) { return {size, size}; }

// A call whose method is a row of the command table. Payloads that do not fit a frame are refused
// before anything is sent.
class Operation : public Call {
 public:
  Operation(ToviTraffic& traffic, wire::Row row);

  // Sends a setting: 1, or the negative code of the exchange, or -15.
  int set(const std::string& payload = {});

  // Sends a setting of another command first and then, once that is accepted, this one: the first
  // result that is not 1. Neither goes out unless both can.
  int setAfter(wire::Row before, const std::string& first, const std::string& payload);

  // Sends a text as a setting, unless it is shorter or longer than the row allows.
  int setText(const std::string& text);

  // Sends a query with the receive buffer of the command's row. No reply, or one of another length,
  // comes back as none.
  Reply ask(Length usable, const std::string& payload = {});

  // Sends a query whose reply says yes or no in byte 2: 1, 0, or -1 without a reply; -15 when
  // refused.
  int askFlag(const std::string& payload = {});

  // Sends a query whose reply holds a text behind a status byte; empty unless the status is 1.
  std::string askText(const std::string& payload = {});

  // Sends a query and gives one byte of its reply, signed; -1 when there is none.
  int askByte(int n, const std::string& payload = {});

  // False, with the outcome of a refusal, when the payload does not fit a frame.
  bool fits(const std::string& payload);

 private:
  const wire::Command& mCommand;
};

}  // namespace tovi::session
