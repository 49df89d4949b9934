// SPDX-License-Identifier: MIT
// The shape behind operations that take several steps on one connection.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "session/call.h"
#include "wire/command_table.h"

namespace tovi::transfer {

// What files and pictures report where other operations report SOCKET_ERROR_CODE.
inline constexpr int kNoConnection = -1;

// One message of a transfer, and the answer that it wants.
struct Step {
  wire::Row row;
  std::size_t statusByte;  // the reply's byte that is 1 when the controller accepts
  int noReply;             // the two results of failure
  int rejected;
};

// Sends the message and awaits its answer: SUCCESS or the step's own code.
int sendStep(session::Session session, std::uint64_t socket, const Step& step,
             std::string_view payload);

// Awaits the answer alone; `sent` tells whether the message before it went out.
int awaitStep(session::Session session, std::uint64_t socket, const Step& step, bool sent = true);

// A call of several steps. The connection that it took is closed when it ends, however it ends,
// unless all is done and connections are kept.
class Transfer : public session::Call {
 public:
  using Call::Call;
  ~Transfer();
  Transfer(const Transfer&) = delete;
  Transfer& operator=(const Transfer&) = delete;

  bool connect();
  std::uint64_t socket() const { return mConnection->socket(); }

 private:
  std::optional<session::Connection> mConnection;
};

}  // namespace tovi::transfer
