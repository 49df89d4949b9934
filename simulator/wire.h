// SPDX-License-Identifier: MIT
// The frame on the wire, from the controller's side. Nothing here is shared with the library, so
// that a mistake on one side shows on the other.
//
//   frame    = AA FF FF what body CC checksum
//   body     = payload bytes; AA, CC and EE travel as EE 0A, EE 0C and EE 0E
//   checksum = 2 bytes, low byte first, over everything before it as transmitted
//
// A 16-bit code travels as what = EF with the code, low byte first, at the start of the payload.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "simulator/bytes.h"

namespace tovi::sim {

inline constexpr std::uint8_t kStartFlag = 0xAA;
inline constexpr std::uint8_t kFixed = 0xFF;
inline constexpr std::uint8_t kEndFlag = 0xCC;
inline constexpr std::uint8_t kEscape = 0xEE;
inline constexpr std::uint8_t kExtended = 0xEF;
inline constexpr std::size_t kWhatOffset = 3;
inline constexpr std::size_t kBodyOffset = 4;
inline constexpr std::size_t kChecksumSize = 2;
inline constexpr std::size_t kMinFrame = 7;

// The longest frame is a file chunk of 65535 bytes behind its number, all escaped; this leaves
// room.
inline constexpr std::size_t kMaxFrame = 200'000;

// A command or reply as both ends mean it: a code of 8 or 16 bits and its data.
struct Message {
  std::uint16_t code = 0;
  Bytes payload;
};

enum class Drop {
  None,
  Garbage,   // bytes outside any frame
  CutShort,  // a start flag before the frame's end
  TooLong,   // more than kMaxFrame bytes
  Checksum,
  Escape,  // EE before anything but 0A, 0C, 0E
};

std::string_view dropText(Drop drop);

// What came out of the byte stream: a whole frame, or something dropped and why.
struct Received {
  Drop drop = Drop::None;
  std::uint8_t what = 0;
  Bytes body;  // without escapes, still enciphered
  Bytes raw;   // as received; of garbage only the first bytes
};

// Finds frames in a byte stream that may hold anything. Keeps at most kMaxFrame bytes.
class FrameReader {
 public:
  std::vector<Received> feed(View bytes);

  // Bytes of a frame that is not finished.
  std::size_t unfinished() const { return mRaw.size(); }

 private:
  std::size_t plainRun(View bytes) const;
  void take(std::uint8_t byte);
  void takeHeader(std::uint8_t byte);
  void takeBody(std::uint8_t byte);
  void finish();
  void drop(Drop why);
  void skip(View bytes);

  Bytes mRaw;
  bool mEndSeen = false;
  std::size_t mChecksumLeft = 0;
  Bytes mGarbage;
  std::vector<Received> mReceived;
};

std::uint16_t checksum(View bytes);

// The body as transmitted.
Bytes escaped(View body);

Bytes writeFrame(std::uint8_t what, View body);

std::uint8_t whatByte(std::uint16_t code);

// The whole plain payload of a message: for a 16-bit code, the code comes first.
Bytes pack(const Message& message);

// Nothing when the payload of a 16-bit code does not hold one. Codes of one byte do not travel this
// way, and would pass for another command.
std::optional<Message> unpack(std::uint8_t what, View plain);

}  // namespace tovi::sim
