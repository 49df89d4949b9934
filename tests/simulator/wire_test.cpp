// SPDX-License-Identifier: MIT
#include "simulator/wire.h"

#include <gtest/gtest.h>

#include "simulator/cipher.h"
#include "tests/simulator/literal.h"

namespace tovi::sim {
namespace {

constexpr std::string_view kGood = "AA FF FF 07 02 50 CC 38 4A";

struct Stream {
  std::string_view bytes;
  std::vector<Drop> events;
  std::string_view body;  // of the last whole frame
};

const Stream kStreams[] = {
    {"AA FF FF A9 CC 42 E1", {Drop::None}, ""},
    {"AA FF FF 07 02 EE 0A CC C2 B5", {Drop::None}, "02 AA"},
    {"AA FF FF 7E 00 EE 0A EE 0C EE 0E CC 21 08", {Drop::None}, "00 AA CC EE"},
    // A command byte is never escaped, not even one that looks like a flag.
    {"AA FF FF AA 01 02 CC A9 6C", {Drop::None}, "01 02"},
    // The altered entry, and a sender without it.
    {"AA FF FF 07 02 56 CC D8 1B", {Drop::None}, "02 56"},
    {"AA FF FF 07 02 56 CC E8 1E", {Drop::Checksum}, ""},
    {"00 11 CC EE AA FF FF 07 02 50 CC 38 4A", {Drop::None}, "02 50"},
    {"AA AA FF AA FF FF 07 02 50 CC 38 4A", {Drop::None}, "02 50"},
    {"AA FF FF 07 02 50 CC 38 4B AA FF FF 07 02 50 CC 38 4A",
     {Drop::Checksum, Drop::None},
     "02 50"},
    {"AA FF FF 07 02 AA FF FF 07 02 50 CC 38 4A", {Drop::CutShort, Drop::None}, "02 50"},
    // The good frame begins where a command byte, or one of the checksum bytes, was expected.
    {"AA FF FF AA FF FF 07 02 50 CC 38 4A", {Drop::Checksum, Drop::None}, "02 50"},
    {"AA FF FF 10 CC AA FF FF 07 02 50 CC 38 4A", {Drop::Checksum, Drop::None}, "02 50"},
    {"AA FF FF 10 CC 00 AA FF FF 07 02 50 CC 38 4A", {Drop::Checksum, Drop::None}, "02 50"},
    {"AA FF FF 08 EE AA FF FF 07 02 50 CC 38 4A", {Drop::CutShort, Drop::None}, "02 50"},
    {"AA FF FF 08 01 EE 00 CC 83 07", {Drop::Escape}, ""},
    {"AA FF FF 08 EE CC 1F 28", {Drop::Escape}, ""},
    {"AA FF FF 07 02 50 CC 38", {}, ""},
};

std::vector<Received> withoutGarbage(std::vector<Received> received) {
  std::erase_if(received, [](const Received& one) { return one.drop == Drop::Garbage; });
  return received;
}

void expectEvents(const Stream& stream, const std::vector<Received>& received) {
  SCOPED_TRACE(stream.bytes);
  ASSERT_EQ(received.size(), stream.events.size());
  for (std::size_t i = 0; i < received.size(); ++i) EXPECT_EQ(received[i].drop, stream.events[i]);
  if (!received.empty()) {
    EXPECT_EQ(received.back().body, literal(stream.body));
  }
}

TEST(SimFrameReader, FindsFramesHoweverTheyAreCut) {
  for (const Stream& stream : kStreams) {
    const Bytes bytes = literal(stream.bytes);
    for (std::size_t cut = 0; cut <= bytes.size(); ++cut) {
      FrameReader reader;
      std::vector<Received> received = reader.feed(View(bytes).first(cut));
      for (Received& late : reader.feed(View(bytes).subspan(cut))) received.push_back(late);
      expectEvents(stream, withoutGarbage(received));
    }
    FrameReader reader;
    std::vector<Received> received;
    for (const std::uint8_t byte : bytes) {
      for (Received& one : reader.feed({&byte, 1})) received.push_back(one);
    }
    expectEvents(stream, withoutGarbage(received));
  }
}

TEST(SimFrameReader, ReportsGarbageOncePerRead) {
  FrameReader reader;
  const auto received = reader.feed(Bytes(100'000, 0x55));
  ASSERT_EQ(received.size(), 1U);
  EXPECT_EQ(received[0].drop, Drop::Garbage);
  EXPECT_EQ(received[0].raw, Bytes(16, 0x55));
  EXPECT_TRUE(reader.feed(literal("AA FF FF")).empty());
  EXPECT_EQ(reader.unfinished(), 3U);
}

TEST(SimFrameReader, DropsWhatIsTooLongAndGoesOn) {
  FrameReader reader;
  reader.feed(literal("AA FF FF 13"));
  Drop drop = Drop::None;
  for (int i = 0; i < 300; ++i) {
    for (const Received& one : withoutGarbage(reader.feed(Bytes(1000, 0x42)))) drop = one.drop;
    ASSERT_LE(reader.unfinished(), kMaxFrame);
  }
  EXPECT_EQ(drop, Drop::TooLong);
  EXPECT_EQ(reader.unfinished(), 0U);
  EXPECT_EQ(reader.feed(literal(kGood)).size(), 1U);
}

TEST(SimWriteFrame, EscapesThePayloadAlone) {
  EXPECT_EQ(writeFrame(0x7F, literal("01 AA CC EE")),
            literal("AA FF FF 7F 01 EE 0A EE 0C EE 0E CC 2C B1"));
  EXPECT_EQ(writeFrame(0xAA, literal("01 02")), literal("AA FF FF AA 01 02 CC A9 6C"));
}

TEST(SimMessage, HoldsItsCodeOfSixteenBits) {
  for (const std::string_view lacking : {"", "0C", "07 00", "FF 00 01"}) {
    EXPECT_FALSE(unpack(0xEF, literal(lacking))) << lacking;
  }
}

struct Ciphered {
  std::string_view key;
  std::string_view plain;
  std::string_view ciphered;
};

// Whole blocks, which take one more of padding. From `openssl enc`.
constexpr Ciphered kCiphered[] = {
    {"des:12345678", "41 42 43 44 45 46 47 48", "F7 E9 93 11 58 FC 25 86 89 6C D8 1B 07 59 B2 AD"},
    {"aes:12345678", "41 42 43 44 45 46 47 48 49 4A 4B 4C 4D 4E 4F 50",
     "AA 61 B5 10 8A 2F 48 02 59 A0 5F 8F 29 53 C4 70 23 48 6D 33 86 3A BF B2 FF BB 0E 88 D9 2B E1 "
     "58"},
    {"sm4:12345678", "41 42 43 44 45 46 47 48 49 4A 4B 4C 4D 4E 4F 50",
     "45 63 18 2F 07 E3 5C D1 3C F7 8A 4C DC C9 A0 66 AE 1E 49 D6 91 41 FE CB 01 46 0F 67 48 C3 A0 "
     "C6"},
};

TEST(SimCipher, MatchesKnownBytes) {
  for (const Ciphered& row : kCiphered) {
    const Key key = parseKey(row.key).value();
    EXPECT_EQ(encipher(key, literal(row.plain)), literal(row.ciphered)) << row.key;
    EXPECT_EQ(decipher(key, literal(row.ciphered)), literal(row.plain)) << row.key;
    EXPECT_FALSE(decipher(key, {})) << row.key;
  }
}

TEST(SimCipher, LeavesTheExemptPlain) {
  const Key des = parseKey("des:12345678").value();
  EXPECT_TRUE(sentPlain({}, {0x08, {1}}));
  EXPECT_FALSE(sentPlain(des, {0x08, {1}}));
  EXPECT_TRUE(sentPlain(des, {0x08, {}}));
  EXPECT_TRUE(sentPlain(des, {0x71, {1}}));
  EXPECT_FALSE(sentPlain(des, {0x010D, {}}));  // its code is payload
  EXPECT_FALSE(receivedPlain(des, 0x07, literal("0C 01")));
  EXPECT_TRUE(receivedPlain(des, 0x70, literal("01 02 03 04 05 06 07 08")));
  // Ciphertext that happens to begin like the exempt code.
  EXPECT_FALSE(receivedPlain(des, 0xEF, literal("0C 01 33 44 55 66 77 88")));
}

}  // namespace
}  // namespace tovi::sim
