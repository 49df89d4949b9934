// SPDX-License-Identifier: MIT
// Misbehaviour on request.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "simulator/cipher.h"
#include "simulator/wire.h"

namespace tovi::sim {

enum class FaultKind {
  NoReply,
  LateReply,
  Pieces,
  TwoReplies,
  WrongChecksum,
  BadEscape,
  WrongCommand,
  Garbage,
  CloseBefore,
  CloseInside,
  CloseAfter,
  Reset,
  Refuse,
  WrongKey,
};

struct Fault {
  FaultKind kind;
  int value = 0;                       // milliseconds of LateReply, number of Pieces
  std::optional<unsigned> count = {};  // exchanges it strikes; without one, every exchange
  std::string_view method = {};        // the one it strikes; without one, every method
  unsigned first = 1;                  // which of those exchanges is the first that it strikes
};

// "no-reply", "no-reply:2" (two exchanges), "late-reply=1500", "pieces=3:1"; of one method
// "refuse@setBrightness", and from the third one on "refuse@sendFileContent#3:1". The controller's
// last word on a file is "recvFileOverRsp".
std::optional<Fault> parseFault(std::string_view text);

std::string_view faultName(FaultKind kind);

// Every kind with what it does, one a line.
std::string faultHelp();

// Deals out faults, one an exchange, each until its count is used up. Those of other methods are
// passed over.
class FaultPlan {
 public:
  explicit FaultPlan(std::vector<Fault> faults);

  std::optional<Fault> next(std::string_view method);

 private:
  std::vector<Fault> mFaults;  // in the order of their turns
};

enum class End { Stay, Close, Reset };

// One step of a delivery: wait, send, then maybe hang up.
struct Step {
  int delayMs = 0;
  Bytes bytes;
  End end = End::Stay;
};

// The places where a fault comes in. Each leaves alone what is not its business.
Message spoiltMessage(const std::optional<Fault>& fault, Message reply);
Key otherKey(const Key& key);
Bytes spoiltFrame(const std::optional<Fault>& fault, Bytes frame);
std::vector<Step> deliver(const std::optional<Fault>& fault, const std::vector<Bytes>& frames);

}  // namespace tovi::sim
