// The shape behind operations that take several steps on one connection.
#pragma once

#include <cstdint>

#include <tovisdk/tovi_traffic.h>

#include "device/operation.h"
#include "wire/command_table.h"

namespace tovi::transfer {

// What leads the data of a content chunk.
inline constexpr int kNumberSize = 2;

// The longest text that fits a frame in every mode behind two leading bytes.
inline constexpr std::size_t kMaxText = wire::kMaxPayload - 2;

// What files and pictures report where other operations report SOCKET_ERROR_CODE.
inline constexpr int kNoConnection = -1;

// One message of a transfer, and the answer that it wants.
struct Step {
  const wire::Command& command;
  int statusByte;  // the reply's byte that is 1 when the controller accepts
  int noReply;     // the two results of failure
  int rejected;
};

// One call of a public method, from its " start" line on. The connection that it took is closed
// when it ends, however it ends.
class Transfer {
 public:
  Transfer(ToviTraffic& traffic, const char* method);
  ~Transfer();
  Transfer(const Transfer&) = delete;
  Transfer& operator=(const Transfer&) = delete;

  bool connect();
  std::uint64_t socket() const { return mSocket; }

  // Ends the call before anything is sent: says why in the log and gives -15.
  int refuse(const char* why);

 private:
  ToviTraffic& mTraffic;
  const char* mMethod;
  std::uint64_t mSocket = 0;
};

}  // namespace tovi::transfer
