// SPDX-License-Identifier: MIT
// A push beside sockets and the kernels: what there is to do, and no more.
#include <tovisdk/tovi_traffic.h>

#include "push.h"
#include "rows.h"
#include "wire/checksum.h"
#include "wire/escaping.h"

namespace tovi::bench {
namespace {

void ours(benchmark::State& state) {
  const Silence silence;
  const Pushed pushed(kChunk);
  ToviTraffic traffic("127.0.0.1", pushed.port());
  onBytes(state, kFileSize, [&] {
    if (traffic.sendFile(pushed.path(), "a.bin") != 1) state.SkipWithError("failed");
  });
}

void raw(benchmark::State& state) {
  const Pushed pushed(kChunk);
  std::string room(2 * (kChunk + 2) + 8, '\0');
  const std::string head = hex("AA FF FF 13");
  onBytes(state, kFileSize, [&] {
    pushRaw(pushed, [&](std::string_view payload) {
      head.copy(room.data(), head.size());
      char* end = wire::escape(payload, room.data() + head.size());
      *end++ = '\xCC';
      const std::uint16_t crc =
          wire::checksum({room.data(), static_cast<std::size_t>(end - room.data())});
      *end++ = static_cast<char>(crc & 0xFF);
      *end++ = static_cast<char>(crc >> 8);
      return std::string_view(room.data(), static_cast<std::size_t>(end - room.data()));
    });
  });
}

const bool kAdded = [] {
  addMeeting("push 100 MB, in one program with its kernels", "ours", ours);
  addMeeting("push 100 MB, in one program with its kernels", "raw sockets and the kernels", raw);
  return true;
}();

}  // namespace
}  // namespace tovi::bench
