// SPDX-License-Identifier: MIT
// The shapes behind the commands.
#pragma once

#include <climits>
#include <concepts>
#include <string>
#include <string_view>

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

// A payload is written down as its parts: of a number its low byte, a text as it is, and what a
// function gives, which is called when the payload is put together.
inline void append(std::string& payload, int part) { payload += static_cast<char>(part); }
inline void append(std::string& payload, std::string_view part) { payload += part; }
template <std::invocable Part>
void append(std::string& payload, const Part& part) {
  payload += part();
}

template <class... Parts>
std::string payloadOf(const Parts&... parts) {
  std::string payload;
  (append(payload, parts), ...);
  return payload;
}

// A call whose method is a row of the command table. Payloads that do not fit a frame are refused
// before anything is sent. Where memory is out, each shape gives its failure value.
class Operation : public Call {
 public:
  Operation(ToviTraffic& traffic, wire::Row row);

  // Sends a setting: 1, or the negative code of the exchange, or -15.
  template <class... Parts>
  int set(const Parts&... parts) {
    return guarded(kNoAnswer, [&] { return sendSetting(payloadOf(parts...)); });
  }

  // Sends a setting of another command first and then, once that is accepted, this one: the first
  // result that is not 1. Neither goes out unless both can.
  template <class... Parts>
  int setAfter(wire::Row before, std::string_view first, const Parts&... parts) {
    return guarded(kNoAnswer, [&] { return sendSettings(before, first, payloadOf(parts...)); });
  }

  // Sends a text as a setting, unless it is shorter or longer than the row allows.
  int setText(const std::string& text);

  // Sends a setting that is answered in byte 2: 1 accepted, 0 refused, -1 without a reply; -15 when
  // refused before.
  template <class... Parts>
  int confirm(const Parts&... parts) {
    return guarded(-1, [&] { return sendConfirmed(payloadOf(parts...)); });
  }

  // Asks for what is yes or no in byte 2: 1, 0, or -1 without a reply.
  int askFlag();

  // Sends a query with the receive buffer of the command's row, and decodes the reply. Without one,
  // or with one of another length, the result is `otherwise`.
  template <class Result, class Decode, class... Parts>
  Result ask(Length usable, Result otherwise, Decode decode, const Parts&... parts) {
    return guarded(otherwise, [&]() -> Result {
      const Reply reply = sendQuery(usable, payloadOf(parts...));
      return reply ? decode(reply) : otherwise;
    });
  }

  // Asks for a text behind a status byte; empty unless the status is 1.
  template <class... Parts>
  std::string askText(const Parts&... parts) {
    return guarded(std::string(), [&] { return sendTextQuery(payloadOf(parts...)); });
  }

  // Sends a setting whose status is that byte of the reply, signed; -1 when there is none.
  template <class... Parts>
  int confirmAt(int n, const Parts&... parts) {
    const auto status = [this, n](const Reply& reply) {
      return reply.unsignedByte(n) == 0 ? end(ToviOutcome::Rejected, 0) : reply.signedByte(n);
    };
    return ask(atLeast(n + 1), -1, status, parts...);
  }

  // Asks for one byte of the reply, signed; -1 when there is none.
  template <class... Parts>
  int askByte(int n, const Parts&... parts) {
    return ask(
        atLeast(n + 1), -1, [n](const Reply& reply) { return reply.signedByte(n); }, parts...);
  }

 private:
  static constexpr int kNoAnswer = ToviTraffic::SEND_NOT_RECV_ERROR;

  int sendSetting(std::string_view payload);
  int sendSettings(wire::Row before, std::string_view first, std::string_view payload);
  int sendConfirmed(std::string_view payload);
  Reply sendQuery(Length usable, std::string_view payload);
  std::string sendTextQuery(std::string_view payload);
  bool fits(std::string_view payload);

  const wire::Command& mCommand;
};

}  // namespace tovi::session
