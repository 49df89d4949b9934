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
};

// "no-reply", "no-reply:2" (two exchanges), "late-reply=1500", "pieces=3:1".
std::optional<Fault> parseFault(std::string_view text);

std::string_view faultName(FaultKind kind);

// Every kind with what it does, one a line.
std::string faultHelp();

// Deals out faults, one an exchange, each until its count is used up.
class FaultPlan {
 public:
  explicit FaultPlan(std::vector<Fault> faults);

  std::optional<Fault> next();

 private:
  std::vector<Fault> mFaults;  // the current one first
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
