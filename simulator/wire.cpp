// SPDX-License-Identifier: MIT
#include "simulator/wire.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tovi::sim {
namespace {

constexpr std::size_t kGarbageShown = 16;

constexpr std::array<std::uint16_t, 256> checksumSteps() {
  std::array<std::uint16_t, 256> steps{};
  for (unsigned index = 0; index < steps.size(); ++index) {
    unsigned value = index;
    for (int bit = 0; bit < 8; ++bit) {
      value = (value & 1U) != 0 ? (value >> 1) ^ 0x8408U : value >> 1;
    }
    steps[index] = static_cast<std::uint16_t>(value);
  }
  // The controllers' table differs from the polynomial in this one entry.
  steps[0x89] = 0x019C;
  return steps;
}
constexpr std::array<std::uint16_t, 256> kChecksumSteps = checksumSteps();

std::optional<Bytes> unescaped(View wire) {
  Bytes body;
  body.reserve(wire.size());
  for (std::size_t i = 0; i < wire.size(); ++i) {
    if (wire[i] != kEscape) {
      body.push_back(wire[i]);
      continue;
    }
    if (++i == wire.size()) return std::nullopt;
    if (wire[i] != 0x0A && wire[i] != 0x0C && wire[i] != 0x0E) return std::nullopt;
    body.push_back(static_cast<std::uint8_t>(wire[i] << 4 | wire[i]));
  }
  return body;
}

Received check(Bytes raw) {
  const View frame = raw;
  const View covered = frame.first(frame.size() - kChecksumSize);
  const View sum = frame.last(kChecksumSize);

  Received received;
  received.what = frame[kWhatOffset];
  if (checksum(covered) != (sum[0] | sum[1] << 8)) {
    received.drop = Drop::Checksum;
  } else if (auto body =
                 unescaped(covered.subspan(kBodyOffset, covered.size() - kBodyOffset - 1))) {
    received.body = std::move(*body);
  } else {
    received.drop = Drop::Escape;
  }
  received.raw = std::move(raw);
  return received;
}

}  // namespace

std::string_view dropText(Drop drop) {
  switch (drop) {
    case Drop::None:
      return "whole";
    case Drop::Garbage:
      return "bytes outside any frame";
    case Drop::CutShort:
      return "cut short by another start flag";
    case Drop::TooLong:
      return "longer than any frame";
    case Drop::Checksum:
      return "wrong checksum";
    case Drop::Escape:
      return "bad escape";
  }
  return "";
}

std::vector<Received> FrameReader::feed(View bytes) {
  while (!bytes.empty()) {
    const View plain = bytes.first(plainRun(bytes));
    if (plain.empty()) take(bytes.front());
    mRaw.insert(mRaw.end(), plain.begin(), plain.end());
    bytes = bytes.subspan(std::max<std::size_t>(plain.size(), 1));
  }
  // Reported once per read: a peer must not get a line out of us for every byte.
  if (!mGarbage.empty()) {
    mReceived.push_back({Drop::Garbage, 0, {}, std::exchange(mGarbage, {})});
  }
  return std::exchange(mReceived, {});
}

// How many bytes of a body begin here that end nothing, and so need no looking at one by one.
std::size_t FrameReader::plainRun(View bytes) const {
  if (mRaw.size() < kBodyOffset || mEndSeen) return 0;
  const View run = bytes.first(std::min(bytes.size(), kMaxFrame - kChecksumSize - 1 - mRaw.size()));
  const auto stop = std::find_if(run.begin(), run.end(), [](std::uint8_t byte) {
    return byte == kStartFlag || byte == kEndFlag;
  });
  return static_cast<std::size_t>(stop - run.begin());
}

void FrameReader::take(std::uint8_t byte) {
  if (mRaw.size() < kBodyOffset) {
    takeHeader(byte);
  } else if (!mEndSeen) {
    takeBody(byte);
  } else {
    mRaw.push_back(byte);
    if (--mChecksumLeft == 0) finish();
  }
}

void FrameReader::takeHeader(std::uint8_t byte) {
  const bool wanted = mRaw.empty()                ? byte == kStartFlag
                      : mRaw.size() < kWhatOffset ? byte == kFixed
                                                  : true;
  if (wanted) {
    mRaw.push_back(byte);
    return;
  }
  skip(mRaw);
  mRaw.clear();
  if (byte == kStartFlag) {
    mRaw.push_back(byte);
  } else {
    skip({&byte, 1});
  }
}

void FrameReader::takeBody(std::uint8_t byte) {
  if (byte == kStartFlag) {  // never inside a body, where it would be escaped
    drop(Drop::CutShort);
    mRaw.push_back(byte);
    return;
  }
  mRaw.push_back(byte);
  if (byte == kEndFlag) {
    mEndSeen = true;
    mChecksumLeft = kChecksumSize;
  } else if (mRaw.size() + kChecksumSize >= kMaxFrame) {
    drop(Drop::TooLong);
  }
}

void FrameReader::finish() {
  mEndSeen = false;
  mReceived.push_back(check(std::exchange(mRaw, {})));
  if (mReceived.back().drop != Drop::Checksum) return;

  // What looked like a frame may have swallowed the start of a good one: in place of its command
  // byte or of its checksum. Nowhere else does it hold a start flag, so this goes one level deep.
  const Bytes raw = mReceived.back().raw;
  const auto again = std::find(raw.begin() + 1, raw.end(), kStartFlag);
  std::for_each(again, raw.end(), [this](std::uint8_t byte) { take(byte); });
}

void FrameReader::drop(Drop why) {
  mReceived.push_back({why, mRaw[kWhatOffset], {}, std::exchange(mRaw, {})});
}

void FrameReader::skip(View bytes) {
  const std::size_t room = kGarbageShown - mGarbage.size();
  const View shown = bytes.first(std::min(room, bytes.size()));
  mGarbage.insert(mGarbage.end(), shown.begin(), shown.end());
}

std::uint16_t checksum(View bytes) {
  unsigned sum = 0xFFFF;
  for (const std::uint8_t byte : bytes) {
    sum = sum >> 8 ^ kChecksumSteps[(sum ^ byte) & 0xFFU];
  }
  return static_cast<std::uint16_t>(sum);
}

Bytes escaped(View body) {
  Bytes wire;
  wire.reserve(body.size());
  for (const std::uint8_t byte : body) {
    if (byte == kStartFlag || byte == kEndFlag || byte == kEscape) {
      wire.push_back(kEscape);
      wire.push_back(byte & 0x0F);
    } else {
      wire.push_back(byte);
    }
  }
  return wire;
}

Bytes writeFrame(std::uint8_t what, View body) {
  Bytes frame{kStartFlag, kFixed, kFixed, what};
  const Bytes wire = escaped(body);
  frame.insert(frame.end(), wire.begin(), wire.end());
  frame.push_back(kEndFlag);
  const std::uint16_t sum = checksum(frame);
  frame.push_back(static_cast<std::uint8_t>(sum & 0xFF));
  frame.push_back(static_cast<std::uint8_t>(sum >> 8));
  return frame;
}

std::uint8_t whatByte(std::uint16_t code) {
  return code > 0xFF ? kExtended : static_cast<std::uint8_t>(code);
}

Bytes pack(const Message& message) {
  if (message.code <= 0xFF) return message.payload;
  Bytes plain{static_cast<std::uint8_t>(message.code & 0xFF),
              static_cast<std::uint8_t>(message.code >> 8)};
  plain.insert(plain.end(), message.payload.begin(), message.payload.end());
  return plain;
}

std::optional<Message> unpack(std::uint8_t what, View plain) {
  if (what != kExtended) return Message{what, {plain.begin(), plain.end()}};
  if (plain.size() < 2) return std::nullopt;
  const auto code = static_cast<std::uint16_t>(plain[0] | plain[1] << 8);
  if (code <= 0xFF) return std::nullopt;
  return Message{code, {plain.begin() + 2, plain.end()}};
}

}  // namespace tovi::sim
