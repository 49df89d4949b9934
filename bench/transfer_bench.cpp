// SPDX-License-Identifier: MIT
// A file of 100 MB to a controller on loopback.
#include <tovisdk/tovi_traffic.h>

#include "controller.h"
#include "material.h"
#include "push.h"
#include "rows.h"
#include "scratch.h"

namespace tovi::bench {
namespace {

using Setter = void (ToviTraffic::*)(const char*);

auto pushing(Setter setKey) {
  return [setKey](benchmark::State& state) {
    const Silence silence;
    const Pushed pushed(setKey == nullptr ? kChunk : kCipheredChunk);
    ToviTraffic traffic("127.0.0.1", pushed.port());
    if (setKey != nullptr) (traffic.*setKey)(kPassword);
    onBytes(state, kFileSize, [&] {
      if (traffic.sendFile(pushed.path(), "a.bin") != 1) state.SkipWithError("failed");
    });
  };
}

const bool kAdded = [] {
  addMeeting("push 100 MB, plain", "ours", pushing(nullptr));
  addMeeting("push 100 MB, plain", "raw sockets, ready frames", [](benchmark::State& state) {
    const Pushed pushed(kChunk);
    const std::string frame = frameOf(0x13, "\x01\x01" + randomBytes(kChunk));
    onBytes(state, kFileSize,
            [&] { pushRaw(pushed, [&](std::string_view) { return std::string_view(frame); }); });
  });
  addMeeting("push 100 MB, AES", "ours", pushing(&ToviTraffic::setAesKey));
  addMeeting("push 100 MB, AES", "the same in plain", pushing(nullptr));
  return true;
}();

}  // namespace
}  // namespace tovi::bench
