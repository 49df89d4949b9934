#include "simulator/exchange.h"

#include <utility>

namespace tovi::sim {

std::optional<Carried> readRequest(const Received& frame, const Key& key) {
  const bool plain = receivedPlain(key, frame.what, frame.body);
  const auto payload = plain ? std::optional(frame.body) : decipher(key, frame.body);
  if (!payload) return std::nullopt;
  auto message = unpack(frame.what, *payload);
  if (!message) return std::nullopt;
  return Carried{std::move(*message), !plain, frame.body, frame.raw};
}

Carried makeReply(Message message, const Key& key) {
  Carried reply;
  reply.ciphered = !sentPlain(key, message);
  reply.body = reply.ciphered ? encipher(key, pack(message)) : pack(message);
  reply.raw = writeFrame(whatByte(message.code), reply.body);
  reply.message = std::move(message);
  return reply;
}

Exchange converse(Carried request, Controller& controller, const Key& key, FaultPlan& faults) {
  Exchange exchange;
  exchange.request = std::move(request);
  exchange.cipher = key.cipher;

  // A fault is spent only where there is a reply to spoil, which the refusal tells beforehand.
  const Message& message = exchange.request.message;
  Answer refusal = controller.refuse(message);
  const auto fault = refusal.replies.empty() ? std::nullopt : faults.next();
  if (fault) exchange.fault = fault->kind;
  exchange.answer =
      exchange.fault == FaultKind::Refuse ? std::move(refusal) : controller.handle(message);

  const Key replyKey = exchange.fault == FaultKind::WrongKey ? otherKey(key) : key;
  for (const Message& reply : exchange.answer.replies) {
    exchange.replies.push_back(makeReply(spoiltMessage(fault, reply), replyKey));
    Bytes& raw = exchange.replies.back().raw;
    raw = spoiltFrame(fault, std::move(raw));
  }
  std::vector<Bytes> frames;
  for (const Carried& reply : exchange.replies) frames.push_back(reply.raw);
  exchange.steps = deliver(fault, frames);
  return exchange;
}

}  // namespace tovi::sim
