// SPDX-License-Identifier: MIT
// What the frame format's two sides share beyond the constants of ProtocalParser.
#pragma once

#include <climits>
#include <cstddef>
#include <cstdint>

namespace tovi::wire {

// Codes above this one travel as this command byte, with the 16-bit code leading the payload.
inline constexpr short kExtendedCommand = 0xEF;

// Never enciphered: the secret handshake's reply (its request is WHAT_SECRET_DES_MD5_REQ), and the
// question whether the controller expects enciphered traffic, in both directions.
inline constexpr char kSecretReply = 0x71;
inline constexpr short kIsSecret = 0x010C;

enum CipherMode { kPlain = 0, kDes = 1, kAes = 2, kSm4 = 3 };

// Bytes of a frame that are not payload.
inline constexpr int kFrameBytes = 7;

// What a frame carries of enciphered payload.
inline constexpr std::size_t kMaxCiphered = 65535;

// The longest plain payload of a mode, the 16-bit code of extended commands included: a cipher
// fills up to a whole block, and adds a block to what is whole. A plain frame only has to stay
// countable, with every byte escaped.
constexpr std::size_t mostPlain(int mode) {
  constexpr std::size_t kDesBlock = 8;
  constexpr std::size_t kBlock = 16;
  switch (mode) {
    case kDes:
      return kMaxCiphered / kDesBlock * kDesBlock - 1;
    case kAes:
    case kSm4:
      return kMaxCiphered / kBlock * kBlock - 1;
    default:
      return INT_MAX / 2 - kFrameBytes;
  }
}

// A code as exchanges pass it: an 8-bit one is widened with its sign, so that 0xDD becomes 0xFFDD
// and is told apart from a 16-bit code.
constexpr short wideCode(std::uint16_t code) {
  return code <= 0xFF ? static_cast<signed char>(code) : static_cast<short>(code);
}

}  // namespace tovi::wire
