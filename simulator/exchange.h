// SPDX-License-Identifier: MIT
// One exchange from the frame that came to the frames that go: deciphers, asks the controller,
// enciphers. No sockets.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "simulator/cipher.h"
#include "simulator/controller.h"
#include "simulator/faults.h"
#include "simulator/wire.h"

namespace tovi::sim {

// A frame and what it means, step by step.
struct Carried {
  Message message;
  Cipher cipher = Cipher::None;  // that the payload travels under
  Bytes body;                    // plain or enciphered, without escapes
  Bytes raw;                     // as on the wire
};

struct Exchange {
  Carried request;
  Answer answer;
  std::vector<Carried> replies;
  std::optional<FaultKind> fault;  // that was put in
  std::vector<Step> steps;         // how the replies are delivered
};

// Nothing when the payload is not readable: another key or none, or a code that is not there.
std::optional<Carried> readRequest(const Received& frame, const Key& key);

Carried makeReply(Message message, const Key& key);

// Answers a request, with the next fault if one is due. Behind a file's last chunk comes the
// controller's word on the file, which may have a fault of its own.
Exchange converse(Carried request, Controller& controller, Session& session, const Key& key,
                  FaultPlan& faults);

}  // namespace tovi::sim
