// SPDX-License-Identifier: MIT
#include "simulator/faults.h"

#include <algorithm>
#include <utility>

#include "tools/number.h"
#include "wire/command_table.h"

namespace tovi::sim {
namespace {

// Long enough that the peer reads one piece before the next is sent.
constexpr int kPieceGapMs = 30;
constexpr int kMaxLateMs = 600'000;
constexpr int kMaxPieces = 1000;

// Nothing in it passes for a start or an end flag.
constexpr std::uint8_t kGarbage[] = {0x00, 0x11, 0x22, 0x33, 0x44, 0x55, 0x66, 0x77};

struct Kind {
  FaultKind kind;
  std::string_view name;
  std::string_view meaning;
  int value = 0;     // unless told otherwise
  int maxValue = 0;  // 0: takes no value
};

constexpr Kind kKinds[] = {
    {FaultKind::NoReply, "no-reply", "the request is answered by silence"},
    {FaultKind::LateReply, "late-reply", "=MS: the reply comes that much later (1000)", 1000,
     kMaxLateMs},
    {FaultKind::Pieces, "pieces", "=N: the reply comes in so many pieces (2)", 2, kMaxPieces},
    {FaultKind::TwoReplies, "two-replies", "the reply comes twice, in one segment"},
    {FaultKind::WrongChecksum, "wrong-checksum", "the checksum is inverted"},
    {FaultKind::BadEscape, "bad-escape", "an escape that means nothing ends the payload"},
    {FaultKind::WrongCommand, "wrong-command", "the reply carries another command code"},
    {FaultKind::Garbage, "garbage", "bytes outside any frame come before the reply"},
    {FaultKind::CloseBefore, "close-before", "the connection ends in place of the reply"},
    {FaultKind::CloseInside, "close-inside", "the connection ends in the middle of the reply"},
    {FaultKind::CloseAfter, "close-after", "the connection ends after the reply"},
    {FaultKind::Reset, "reset", "the connection is reset in place of the reply"},
    {FaultKind::Refuse, "refuse", "the status is 0 and nothing changes"},
    {FaultKind::WrongKey, "wrong-key", "the reply is enciphered with another key"},
};

constexpr unsigned kMaxCount = ~0U;

// "sendFileContent" or "sendFileContent#3".
bool parseTarget(std::string_view text, Fault& fault) {
  const std::size_t hash = text.find('#');
  for (const wire::Command& command : wire::kCommands) {
    if (command.method == text.substr(0, hash)) fault.method = command.method;
  }
  if (hash == std::string_view::npos) return !fault.method.empty();
  const auto first = tools::parseNumber(text.substr(hash + 1), 1U, kMaxCount);
  fault.first = first.value_or(0);
  return first && !fault.method.empty();
}

Bytes joined(const std::vector<Bytes>& frames) {
  Bytes all;
  for (const Bytes& frame : frames) all.insert(all.end(), frame.begin(), frame.end());
  return all;
}

Bytes withBadEscape(const Bytes& frame) {
  Bytes spoilt(frame.begin(), frame.end() - kChecksumSize - 1);
  spoilt.insert(spoilt.end(), {kEscape, 0x00, kEndFlag});
  const std::uint16_t sum = checksum(spoilt);  // right, so that the escape alone is wrong
  spoilt.push_back(static_cast<std::uint8_t>(sum & 0xFF));
  spoilt.push_back(static_cast<std::uint8_t>(sum >> 8));
  return spoilt;
}

std::vector<Step> inPieces(const Bytes& bytes, std::size_t pieces) {
  pieces = std::min(pieces, bytes.size());
  std::vector<Step> steps;
  for (std::size_t i = 0; i < pieces; ++i) {
    const auto from = static_cast<std::ptrdiff_t>(bytes.size() * i / pieces);
    const auto to = static_cast<std::ptrdiff_t>(bytes.size() * (i + 1) / pieces);
    steps.push_back({i == 0 ? 0 : kPieceGapMs, {bytes.begin() + from, bytes.begin() + to}});
  }
  return steps;
}

}  // namespace

std::optional<Fault> parseFault(std::string_view text) {
  const std::size_t colon = text.find(':');
  const std::size_t at = text.substr(0, colon).find('@');
  const std::string_view head = text.substr(0, std::min(at, colon));
  const std::size_t equals = head.find('=');

  const auto kind = std::find_if(std::begin(kKinds), std::end(kKinds), [&](const Kind& candidate) {
    return candidate.name == head.substr(0, equals);
  });
  if (kind == std::end(kKinds)) return std::nullopt;

  Fault fault{kind->kind, kind->value};
  if (equals != std::string_view::npos) {
    const auto value = tools::parseNumber(head.substr(equals + 1), 1, kind->maxValue);
    if (!value) return std::nullopt;
    fault.value = *value;
  }
  if (at != std::string_view::npos && !parseTarget(text.substr(0, colon).substr(at + 1), fault)) {
    return std::nullopt;
  }
  if (colon != std::string_view::npos) {
    fault.count = tools::parseNumber(text.substr(colon + 1), 1U, kMaxCount);
    if (!fault.count) return std::nullopt;
  }
  return fault;
}

std::string_view faultName(FaultKind kind) {
  for (const Kind& candidate : kKinds) {
    if (candidate.kind == kind) return candidate.name;
  }
  return "";
}

std::string faultHelp() {
  std::string help;
  for (const Kind& kind : kKinds) {
    std::string name(kind.name);
    name.resize(16, ' ');
    help += "  " + name + std::string(kind.meaning) + "\n";
  }
  return help;
}

FaultPlan::FaultPlan(std::vector<Fault> faults) : mFaults(std::move(faults)) {}

std::optional<Fault> FaultPlan::next(std::string_view method) {
  for (auto fault = mFaults.begin(); fault != mFaults.end(); ++fault) {
    if (!fault->method.empty() && fault->method != method) continue;
    if (fault->first > 1) {
      --fault->first;
      continue;
    }
    const Fault due = *fault;
    if (fault->count && --*fault->count == 0) mFaults.erase(fault);
    return due;
  }
  return std::nullopt;
}

Message spoiltMessage(const std::optional<Fault>& fault, Message reply) {
  if (fault && fault->kind == FaultKind::WrongCommand) reply.code ^= 0x40;
  return reply;
}

Key otherKey(const Key& key) {
  Key other = key;
  if (other.cipher == Cipher::None) other = {Cipher::Des, "another!"};
  // Not the lowest bit, which DES does not look at.
  for (char& c : other.text) c = static_cast<char>(c ^ 0x02);
  return other;
}

Bytes spoiltFrame(const std::optional<Fault>& fault, Bytes frame) {
  if (!fault) return frame;
  if (fault->kind == FaultKind::BadEscape) return withBadEscape(frame);
  if (fault->kind == FaultKind::WrongChecksum) {
    for (auto byte = frame.end() - kChecksumSize; byte != frame.end(); ++byte) {
      *byte = static_cast<std::uint8_t>(~*byte);
    }
  }
  return frame;
}

std::vector<Step> deliver(const std::optional<Fault>& fault, const std::vector<Bytes>& frames) {
  std::vector<Step> steps;
  steps.reserve(frames.size());
  for (const Bytes& frame : frames) steps.push_back({0, frame});
  if (!fault || steps.empty()) return steps;

  Bytes all = joined(frames);
  switch (fault->kind) {
    case FaultKind::NoReply:
      return {};
    case FaultKind::LateReply:
      steps.front().delayMs = fault->value;
      break;
    case FaultKind::Pieces:
      return inPieces(all, static_cast<std::size_t>(fault->value));
    case FaultKind::TwoReplies:
      return {{0, joined({all, all})}};
    case FaultKind::Garbage:
      all.insert(all.begin(), std::begin(kGarbage), std::end(kGarbage));
      return {{0, std::move(all)}};
    case FaultKind::CloseBefore:
      return {{0, {}, End::Close}};
    case FaultKind::Reset:
      return {{0, {}, End::Reset}};
    case FaultKind::CloseInside:
      all.resize(all.size() / 2);
      return {{0, std::move(all), End::Close}};
    case FaultKind::CloseAfter:
      steps.back().end = End::Close;
      break;
    case FaultKind::WrongChecksum:
    case FaultKind::BadEscape:
    case FaultKind::WrongCommand:
    case FaultKind::Refuse:
    case FaultKind::WrongKey:
      break;  // already in the frames
  }
  return steps;
}

}  // namespace tovi::sim
