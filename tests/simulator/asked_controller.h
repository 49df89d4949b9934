// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "simulator/controller.h"
#include "tests/simulator/literal.h"

namespace tovi::sim {

// A controller that is asked without a network, always over the same connection.
class AskedController {
 protected:
  explicit AskedController(Storage::Options files = {}) : mController({}, std::move(files)) {}

  // The replies as "code: payload", with " | " between them; empty when there is none.
  std::string ask(std::uint16_t code, const Bytes& payload) {
    mAnswer = mController.handle({code, payload}, mSession);
    std::string replies;
    for (const Message& reply : mAnswer.replies) {
      const std::uint8_t wide[] = {static_cast<std::uint8_t>(reply.code >> 8),
                                   static_cast<std::uint8_t>(reply.code & 0xFF)};
      if (!replies.empty()) replies += " | ";
      replies += hex(View(wide).subspan(reply.code > 0xFF ? 0 : 1)) + ":";
      if (!reply.payload.empty()) replies += " " + hex(reply.payload);
    }
    return replies;
  }
  std::string ask(std::uint16_t code, std::string_view payload = {}) {
    return ask(code, literal(payload));
  }

  Controller mController;
  Session mSession;
  Answer mAnswer;
};

// The bytes of a text as hexadecimal text.
inline std::string words(std::string_view text) { return hex(bytesOf(text)); }

}  // namespace tovi::sim
