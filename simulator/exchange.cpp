// SPDX-License-Identifier: MIT
#include "simulator/exchange.h"

#include <utility>

#include "wire/command_table.h"

namespace tovi::sim {
namespace {

bool isRefusal(const std::optional<Fault>& fault) {
  return fault && fault->kind == FaultKind::Refuse;
}

bool hangsUp(const Exchange& exchange) {
  return !exchange.steps.empty() && exchange.steps.back().end != End::Stay;
}

// What goes out at once goes out in one segment: a second small one would wait for the peer to
// acknowledge the first.
void addStep(std::vector<Step>& steps, Step step) {
  if (steps.empty() || steps.back().end != End::Stay || step.delayMs > 0) {
    steps.push_back(std::move(step));
    return;
  }
  Step& last = steps.back();
  last.bytes.insert(last.bytes.end(), step.bytes.begin(), step.bytes.end());
  last.end = step.end;
}

void addReplies(Exchange& exchange, const std::vector<Message>& replies, const Key& key,
                const std::optional<Fault>& fault) {
  if (fault) exchange.fault = fault->kind;
  const bool otherwise = fault && fault->kind == FaultKind::WrongKey;
  const Key replyKey = otherwise ? otherKey(key) : key;
  std::vector<Bytes> frames;
  for (const Message& reply : replies) {
    Carried carried = makeReply(spoiltMessage(fault, reply), replyKey);
    carried.raw = spoiltFrame(fault, std::move(carried.raw));
    frames.push_back(carried.raw);
    exchange.replies.push_back(std::move(carried));
  }
  for (Step& step : deliver(fault, frames)) addStep(exchange.steps, std::move(step));
}

}  // namespace

std::optional<Carried> readRequest(const Received& frame, const Key& key) {
  const bool plain = receivedPlain(key, frame.what, frame.body);
  const auto payload = plain ? std::optional(frame.body) : decipher(key, frame.body);
  if (!payload) return std::nullopt;
  auto message = unpack(frame.what, *payload);
  if (!message) return std::nullopt;
  return Carried{std::move(*message), plain ? Cipher::None : key.cipher, frame.body, frame.raw};
}

Carried makeReply(Message message, const Key& key) {
  Carried reply;
  const bool plain = sentPlain(key, message);
  reply.cipher = plain ? Cipher::None : key.cipher;
  reply.body = plain ? pack(message) : encipher(key, pack(message));
  reply.raw = writeFrame(whatByte(message.code), reply.body);
  reply.message = std::move(message);
  return reply;
}

Exchange converse(Carried request, Controller& controller, Session& session, const Key& key,
                  FaultPlan& faults) {
  Exchange exchange;
  exchange.request = std::move(request);

  // A fault is spent only where there is a reply to spoil, which the refusal tells beforehand.
  const Message& message = exchange.request.message;
  Answer refusal = controller.refuse(message);
  const auto fault = refusal.replies.empty() ? std::nullopt : faults.next(refusal.method);
  exchange.answer = isRefusal(fault) ? std::move(refusal) : controller.handle(message, session);
  addReplies(exchange, exchange.answer.replies, key, fault);

  if (controller.hasWholeFile(session) && !hangsUp(exchange)) {
    const auto endFault = faults.next(wire::command("recvFileOverRsp").method);
    const Answer end =
        isRefusal(endFault) ? controller.refuseFile(session) : controller.confirmFile(session);
    exchange.answer.told += "; " + end.told;
    addReplies(exchange, end.replies, key, endFault);
  }
  return exchange;
}

}  // namespace tovi::sim
