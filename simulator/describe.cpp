// SPDX-License-Identifier: MIT
#include "simulator/describe.h"

#include <algorithm>

namespace tovi::sim {
namespace {

constexpr std::size_t kBytesShown = 32;

std::string field(std::string_view label, View bytes, std::string_view note = {}) {
  std::string line = "    " + std::string(label);
  line.resize(14, ' ');
  line += bytes.empty() ? "-" : hex(bytes, kBytesShown);
  if (!note.empty()) line += "   " + std::string(note);
  return line + '\n';
}

std::string checksumNote(View sum, View covered) {
  const std::uint16_t right = checksum(covered);
  const std::uint8_t bytes[] = {static_cast<std::uint8_t>(right & 0xFF),
                                static_cast<std::uint8_t>(right >> 8)};
  return std::equal(sum.begin(), sum.end(), std::begin(bytes))
             ? "low byte first, over everything above"
             : "wrong on purpose, should be " + hex(bytes);
}

std::string frameFields(std::string_view title, std::string_view method, const Carried& carried) {
  const View raw = carried.raw;
  const View wire = raw.subspan(kBodyOffset, raw.size() - kMinFrame);
  const View sum = raw.last(kChecksumSize);
  const bool extended = carried.message.code > 0xFF;

  std::string text = "  " + std::string(title) + ", " + std::to_string(raw.size()) + " bytes\n";
  text += field("start", raw.first(1));
  text += field("header", raw.subspan(1, 2));
  text += field("command", raw.subspan(kWhatOffset, 1), extended ? "16-bit code follows" : method);
  text += field("payload", pack(carried.message), extended ? method : std::string_view{});
  if (carried.cipher != Cipher::None) {
    text += field("ciphered", carried.body, tools::cipherName(carried.cipher));
  }
  if (!std::equal(wire.begin(), wire.end(), carried.body.begin(), carried.body.end())) {
    text += field("escaped", wire);
  }
  text += field("end", raw.subspan(raw.size() - kChecksumSize - 1, 1));
  return text + field("checksum", sum, checksumNote(sum, raw.first(raw.size() - kChecksumSize)));
}

}  // namespace

std::string exchangeLine(std::string_view peer, const Exchange& exchange) {
  const Answer& answer = exchange.answer;
  std::string line = std::string(peer) + "  " + answer.method;
  if (!answer.asked.empty()) line += "  " + answer.asked;
  line += "  -> " + answer.told;

  Cipher cipher = exchange.request.cipher;
  for (const Carried& reply : exchange.replies) cipher = std::max(cipher, reply.cipher);
  if (cipher != Cipher::None) line += "   [" + std::string(tools::cipherName(cipher)) + "]";
  if (exchange.fault) line += "   (fault: " + std::string(faultName(*exchange.fault)) + ")";
  return line;
}

std::string exchangeFrames(const Exchange& exchange) {
  std::string text = frameFields("request", exchange.answer.method, exchange.request);
  for (const Carried& reply : exchange.replies) {
    text += frameFields("reply", "reply to " + exchange.answer.method, reply);
  }
  text.pop_back();
  return text;
}

std::string dropLine(std::string_view peer, const Received& dropped) {
  return std::string(peer) + "  dropped: " + std::string(dropText(dropped.drop)) + "   " +
         hex(dropped.raw, kBytesShown);
}

std::string unreadableLine(std::string_view peer, const Received& frame, const Key& key) {
  const std::string_view why = key.cipher == Cipher::None
                                   ? "the payload does not hold the command's 16-bit code"
                                   : "the payload does not decipher with our key";
  return std::string(peer) + "  dropped: " + std::string(why) + "   " + hex(frame.raw, kBytesShown);
}

}  // namespace tovi::sim
