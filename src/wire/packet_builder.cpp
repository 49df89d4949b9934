// SPDX-License-Identifier: MIT
#include "wire/packet_builder.h"

#include <tovisdk/packet.h>
#include <tovisdk/protocal_parser.h>

#include <algorithm>
#include <iterator>
#include <span>
#include <utility>

#include "cipher/aes.h"
#include "cipher/des.h"
#include "cipher/md5.h"
#include "cipher/sm4.h"
#include "foundation/bytes.h"
#include "foundation/log.h"
#include "foundation/memory.h"
#include "wire/checksum.h"
#include "wire/escaping.h"
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

// False when the payload does not fit a frame once it is enciphered.
bool encipher(std::string& ciphered, std::string_view payload, int mode, std::string_view key) {
  const std::size_t block = mode == kDes ? 8 : kMaxBlock;
  const std::size_t padded = payload.size() - payload.size() % block + block;
  if (padded > kMaxCiphered) return false;
  ciphered.resize(padded + kMaxBlock);
  const int length = encipherInto(ciphered, payload, mode, key);
  if (length < 0) return false;
  ciphered.resize(static_cast<std::size_t>(length));
  return true;
}

// The payload as it goes into the frame, before escaping; `ciphered` is room for it.
std::string_view carriedPayload(std::string& ciphered, char what, std::string_view payload,
                                int mode, const char* key) {
  const bool enciphered = mode >= kDes && mode <= kSm4 && !payload.empty() && key != nullptr &&
                          what != ProtocalParser::WHAT_SECRET_DES_MD5_REQ;
  if (!enciphered) return payload;
  if (!encipher(ciphered, payload, mode, key)) {
    log::error("makeSendPacketEx %s encode error, data lenth = -1", cipherName(mode));
    return {};
  }
  return ciphered;
}

std::size_t frameSize(std::string_view carried) {
  return carried.size() + countFlags(carried) + kFrameBytes;
}

// Writes as many bytes as frameSize says.
void writeFrame(char* frame, char what, std::string_view carried) {
  const char head[] = {ProtocalParser::PACKET_START_FLAG, '\xFF', '\xFF', what};
  char* end = escape(carried, std::copy(std::begin(head), std::end(head), frame));
  *end++ = ProtocalParser::PACKET_END_FLAG;
  const std::uint16_t crc = checksum({frame, static_cast<std::size_t>(end - frame)});
  end[0] = static_cast<char>(crc & 0xFF);
  end[1] = static_cast<char>(crc >> 8);
}

}  // namespace

const char* cipherName(int mode) { return mode == kDes ? "des" : mode == kAes ? "aes" : "sm4"; }

std::string_view FrameBuilder::build(char what, std::string_view payload, int mode,
                                     const char* key) {
  const std::string_view carried = carriedPayload(mCiphered, what, payload, mode, key);
  mFrame.resize(frameSize(carried));
  writeFrame(mFrame.data(), what, carried);
  return mFrame;
}

std::string makeFrame(char what, std::string_view payload, int mode, const char* key) {
  FrameBuilder builder;
  builder.build(what, payload, mode, key);
  return std::move(builder).frame();
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
    std::string ciphered;
    const std::string_view carried =
        tovi::wire::carriedPayload(ciphered, what, tovi::viewOf(data, len), mode, key);
    const std::size_t size = tovi::wire::frameSize(carried);
    char* array = new char[size];
    tovi::wire::writeFrame(array, what, carried);
    *outLen = static_cast<int>(size);
    return array;
  });
}
