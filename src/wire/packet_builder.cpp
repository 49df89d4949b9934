// SPDX-License-Identifier: MIT
#include "wire/packet_builder.h"

#include <tovisdk/packet.h>
#include <tovisdk/protocal_parser.h>

#include <climits>
#include <optional>
#include <span>

#include "cipher/aes.h"
#include "cipher/des.h"
#include "cipher/md5.h"
#include "cipher/sm4.h"
#include "foundation/bytes.h"
#include "foundation/log.h"
#include "foundation/memory.h"
#include "wire/checksum.h"
#include "wire/frame.h"

namespace tovi::wire {
namespace {

constexpr std::size_t kMaxBlock = 16;

int encipherInto(std::span<char> out, std::string_view payload, int mode, std::string_view key) {
  switch (mode) {
    case kDes:
      return cipher::desEncrypt(payload, key, out);
    case kAes:
      return cipher::Aes128(cipher::derivedKey(key)).encrypt(payload, out);
    default:
      return cipher::Sm4(cipher::derivedKey(key)).encrypt(payload, out);
  }
}

// Nothing when the payload does not fit a frame once it is enciphered.
std::optional<std::string> encipher(std::string_view payload, int mode, std::string_view key) {
  const std::size_t block = mode == kDes ? 8 : kMaxBlock;
  const std::size_t padded = payload.size() - payload.size() % block + block;
  if (padded > kMaxCiphered) return std::nullopt;
  std::string ciphered(padded + kMaxBlock, '\0');
  const int length = encipherInto(ciphered, payload, mode, key);
  if (length < 0) return std::nullopt;
  ciphered.resize(static_cast<std::size_t>(length));
  return ciphered;
}

bool needsEscape(char byte) {
  return byte == ProtocalParser::PACKET_START_FLAG || byte == ProtocalParser::PACKET_END_FLAG ||
         byte == ProtocalParser::PACKET_TRANSFER_FLAG;
}

std::string escape(std::string_view payload) {
  std::string escaped;
  escaped.reserve(payload.size() + payload.size() / 16);
  for (const char byte : payload) {
    if (needsEscape(byte)) {
      escaped += ProtocalParser::PACKET_TRANSFER_FLAG;
      escaped += static_cast<char>(byte & 0x0F);
    } else {
      escaped += byte;
    }
  }
  return escaped;
}

// The payload as it goes into the frame, before escaping.
std::string carriedPayload(char what, std::string_view payload, int mode, const char* key) {
  const bool enciphered = mode >= kDes && mode <= kSm4 && !payload.empty() && key != nullptr &&
                          what != ProtocalParser::WHAT_SECRET_DES_MD5_REQ;
  if (!enciphered) return std::string(payload);
  std::optional<std::string> ciphered = encipher(payload, mode, key);
  if (!ciphered) {
    log::error("makeSendPacketEx %s encode error, data lenth = -1", cipherName(mode));
    return {};
  }
  return *std::move(ciphered);
}

}  // namespace

const char* cipherName(int mode) { return mode == kDes ? "des" : mode == kAes ? "aes" : "sm4"; }

std::string makeFrame(char what, std::string_view payload, int mode, const char* key) {
  std::string frame = {ProtocalParser::PACKET_START_FLAG, '\xFF', '\xFF', what};
  frame += escape(carriedPayload(what, payload, mode, key));
  frame += ProtocalParser::PACKET_END_FLAG;
  return frame += lowFirst(checksum(frame));
}

}  // namespace tovi::wire

char* makeSendPacketEx(char what, char* data, int len, int mode, char* key, int* outLen) {
  if (outLen != nullptr) *outLen = 0;
  if (outLen == nullptr || (data == nullptr && len > 0) ||
      tovi::viewOf(data, len).size() > tovi::wire::mostPlain(tovi::wire::kPlain)) {
    tovi::log::error("makeSendPacketEx argument refused, len = %d", len);
    return nullptr;
  }
  char* const none = nullptr;
  return tovi::whereMemoryAllows(none, [&] {
    const std::string frame = tovi::wire::makeFrame(what, tovi::viewOf(data, len), mode, key);
    char* array = tovi::newArray(frame);
    *outLen = static_cast<int>(frame.size());
    return array;
  });
}
