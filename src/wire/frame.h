// What the frame format's two sides share beyond the constants of ProtocalParser.
#pragma once

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

// What a frame carries of enciphered payload.
inline constexpr std::size_t kMaxCiphered = 65535;

// What fits a frame in every mode: the 16-bit code and a whole block of padding are added to it.
inline constexpr std::size_t kMaxPayload = kMaxCiphered - 2 - 16;

// A code as exchanges pass it: an 8-bit one is widened with its sign, so that 0xDD becomes 0xFFDD
// and is told apart from a 16-bit code.
constexpr short wideCode(std::uint16_t code) {
  return code <= 0xFF ? static_cast<signed char>(code) : static_cast<short>(code);
}

}  // namespace tovi::wire
