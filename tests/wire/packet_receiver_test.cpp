// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include <tovisdk/protocal_parser.h>

#include "tests/support/failing_memory.h"
#include "tests/support/hex.h"
#include "tests/support/test_access.h"

namespace {

using tovi::test::hex;
using tovi::test::toHex;
namespace access = tovi::test::access;

constexpr char kAccepted08[] = "AA FF FF 08 01 CC 4E 42";
constexpr char kNone[] = "none";

// A parser for DES takes its key over; in every other mode the array stays the caller's.
char* keyFor(int mode) {
  static char own[] = "12345678";
  return mode == 1 ? std::strcpy(new char[sizeof own], own) : own;
}

std::string feed(ProtocalParser& parser, const std::string& bytes, int what) {
  // An exactly sized copy, so that a read past its end is seen.
  const std::unique_ptr<char[]> exact(new char[bytes.size()]);
  bytes.copy(exact.get(), bytes.size());
  const std::unique_ptr<char[]> package(
      parser.recvProc(exact.get(), static_cast<int>(bytes.size()), static_cast<short>(what)));
  if (package == nullptr) {
    EXPECT_EQ(parser.getPackageLen(), 0);
    return kNone;
  }
  return toHex({package.get(), static_cast<std::size_t>(parser.getPackageLen())});
}

TEST(PacketReceiver, PlainFrames) {
  struct {
    const char* what;
    int code;
    const char* bytes;
    const char* package;
  } const cases[] = {
      {"empty payload", 0x10, "AA FF FF 10 CC 34 0C", "10"},
      {"status byte", 0x08, kAccepted08, "08 01"},
      {"escaped payload", 0x7E, "AA FF FF 7E 00 EE 0A EE 0C EE 0E FF CC 29 A0",
       "7E 00 AA CC EE FF"},
      {"checksum through the altered entry", 0x08, "AA FF FF 08 01 05 CC DA BF", "08 01 05"},
      {"checksum by the unaltered table", 0x08, "AA FF FF 08 01 05 CC EA BA", kNone},
      {"wrong checksum", 0x08, "AA FF FF 08 01 CC 4E 43", kNone},
      {"another command", 0x07, kAccepted08, kNone},
      {"8-bit code above 0x7F, widened", -87, "AA FF FF A9 C8 CC F7 0A", "A9 C8"},
      {"8-bit code above 0x7F, not widened", 0xA9, "AA FF FF A9 C8 CC F7 0A", kNone},
      {"16-bit code", 0x0115, "AA FF FF EF 15 01 01 CC 4A F7", "15 01 01"},
      {"another 16-bit code", 0x0114, "AA FF FF EF 15 01 01 CC 4A F7", kNone},
      {"16-bit code alone", 0x0115, "AA FF FF EF 15 01 CC D5 D8", "15 01"},
      {"16-bit code cut to one byte", 0x00F5, "AA FF FF EF F5 CC 82 DC", kNone},
      {"16-bit code missing", 0x010C, "AA FF FF EF CC F4 F3", kNone},
      {"bad escape", 0x08, "AA FF FF 08 01 EE 00 CC 83 07", kNone},
      {"escape before the end flag", 0x08, "AA FF FF 08 01 EE CC DB B7", kNone},
      {"escape in the header", 0x08, "AA EE 0A 08 01 CC 36 E4", kNone},
      {"header of escapes, too short at last", -86, "AA EE 0A EE 0C CC 36 8B", kNone},
      {"shorter than a frame", -52, "AA FF FF CC E1 48", kNone},
      {"garbage without a start flag swallows the frame", 0x08, "01 02 03 AA FF FF 08 01 CC 4E 42",
       kNone},
      {"garbage that ends itself", 0x08, "01 CC 03 04 AA FF FF 08 01 CC 4E 42", "08 01"},
      {"broken frame before a good one", 0x08, "AA FF FF 08 00 CC 00 00 AA FF FF 08 01 CC 4E 42",
       "08 01"},
      {"another reply first", 0x08, "AA FF FF 10 CC 34 0C AA FF FF 08 01 CC 4E 42", "08 01"},
  };
  for (const auto& c : cases) {
    ProtocalParser parser;
    EXPECT_EQ(feed(parser, hex(c.bytes), c.code), c.package) << c.what;
  }
}

// Frames for one command or another, whole, broken and half, and what is none.
std::string hostileStream(std::mt19937& random) {
  const std::string parts[] = {
      hex(kAccepted08),
      hex("AA FF FF 10 CC 34 0C"),
      hex("AA FF FF 7E 00 EE 0A EE 0C EE 0E FF CC 29 A0"),
      hex("AA FF FF 08 01 CC 4E 43"),
      hex("AA FF FF 08 01 EE 00 CC 83 07"),
      hex("AA EE 0A EE 0C CC 36 8B"),
      hex("AA FF FF 08 CC"),
      hex("AA FF"),
      hex("AA AA"),
      hex("CC CC CC"),
      "x",
      std::string(40, 'x'),
  };
  std::string stream;
  while (stream.size() < 400) stream += parts[random() % std::size(parts)];
  return stream;
}

// All packages of a stream, for one command and the other in turns, and what stays of it.
std::vector<std::string> packagesOf(const std::string& stream,
                                    const std::function<std::size_t()>& nextPiece) {
  ProtocalParser parser;
  std::vector<std::string> packages;
  const auto code = [&] { return packages.size() % 2 == 0 ? 0x08 : 0x10; };
  for (std::size_t at = 0, size = 0; at < stream.size(); at += size) {
    size = nextPiece();
    std::string package = feed(parser, stream.substr(at, size), code());
    for (; package != kNone; package = feed(parser, "", code())) packages.push_back(package);
  }
  packages.push_back("left: " + toHex(access::pending(parser)));
  return packages;
}

TEST(PacketReceiver, AStreamMayBeCutAnywhere) {
  std::mt19937 random(1);
  std::size_t found = 0;
  for (int i = 0; i < 40; ++i) {
    const std::string stream = hostileStream(random);
    const auto whole = packagesOf(stream, [&] { return stream.size(); });
    found += whole.size() - 1;
    for (std::size_t piece = 1; piece < 20; ++piece) {
      ASSERT_EQ(packagesOf(stream, [&] { return piece; }), whole) << toHex(stream);
    }
    ASSERT_EQ(packagesOf(stream, [&] { return random() % 30; }), whole) << toHex(stream);
  }
  EXPECT_GT(found, 40u);
}

TEST(PacketReceiver, AFrameInManyReadsIsNotCopiedForEach) {
  constexpr std::size_t kRead = 100;
  std::string frame = hex("AA FF FF 08");
  for (int i = 0; i < 65535; ++i) frame += "\xEE\x0A";
  frame += hex("CC F5 32");
  ProtocalParser parser;
  char* package = nullptr;
  {
    // There are more than a thousand reads.
    const tovi::test::FailingMemory failing(30, true);
    for (std::size_t at = 0; at < frame.size(); at += kRead) {
      const std::size_t size = std::min(kRead, frame.size() - at);
      package = parser.recvProc(frame.data() + at, static_cast<int>(size), 0x08);
    }
  }
  ASSERT_NE(package, nullptr);
  EXPECT_EQ(std::string(package, static_cast<std::size_t>(parser.getPackageLen())),
            "\x08" + std::string(65535, '\xAA'));
  deleteArry(&package);
}

TEST(PacketReceiver, SkippedFramesStayForAnotherCommand) {
  ProtocalParser parser;
  EXPECT_EQ(feed(parser, hex(kAccepted08), 0x10), kNone);
  EXPECT_EQ(feed(parser, "", 0x08), "08 01");
}

struct Enciphered {
  const char* what;
  int mode;
  int code;
  const char* bytes;
  const char* package;
};

TEST(PacketReceiver, EncipheredFrames) {
  const Enciphered cases[] = {
      {"des", 1, 0x08, "AA FF FF 08 DE EC BA 37 86 7B D1 42 CC A1 53", "08 01"},
      {"aes", 2, 0x08, "AA FF FF 08 4B EF F6 33 C5 AD 79 50 20 68 F1 0A 8D E0 65 7E CC 79 20",
       "08 01"},
      {"sm4", 3, 0x08, "AA FF FF 08 36 11 51 65 43 4C D6 0E E1 2D 06 4B C6 A6 9D 38 CC ED 4D",
       "08 01"},
      {"des, 16-bit code", 1, 0x0110, "AA FF FF EF 5A 13 DF C5 2F CF 8D 7F CC EE D5",
       "10 01 00 01"},
      {"aes, 16-bit code", 2, 0x0110,
       "AA FF FF EF 19 61 1C 34 EE 0C AC C4 81 FC 8A FE 9F 72 DF 0B 57 CC 8B D9", "10 01 00 01"},
      {"sm4, 16-bit code", 3, 0x0110,
       "AA FF FF EF 18 07 DC E4 F5 35 7F 79 CB 56 4C 43 67 28 03 69 CC 2C 24", "10 01 00 01"},
      {"another 16-bit code inside", 1, 0x0111, "AA FF FF EF 5A 13 DF C5 2F CF 8D 7F CC EE D5",
       kNone},
      {"a plain 16-bit reply is no answer to a session with a key", 1, 0x0115,
       "AA FF FF EF 15 01 01 CC 4A F7", kNone},
      // A block that would decipher well.
      {"the secret handshake is plain", 1, 0x71, "AA FF FF 71 DE EC BA 37 86 7B D1 42 CC 33 39",
       "71 DE EC BA 37 86 7B D1 42"},
      {"whatever code it answers", 1, 0x0110, "AA FF FF 71 10 01 00 01 CC 23 99", "10 01 00 01"},
      {"so is 0x010C", 1, 0x010C, "AA FF FF EF 0C 01 01 CC 88 CD", "0C 01 01"},
      {"so is 0x010C", 2, 0x010C, "AA FF FF EF 0C 01 01 CC 88 CD", "0C 01 01"},
      {"so is 0x010C", 3, 0x010C, "AA FF FF EF 0C 01 01 CC 88 CD", "0C 01 01"},
      {"empty payload", 1, 0x10, "AA FF FF 10 CC 34 0C", "10"},
      // What cannot be deciphered is handed over as it came.
      {"des, shorter than a block", 1, 0x08, "AA FF FF 08 01 CC 4E 42", "08 01"},
      {"des, ragged, more padding than text", 1, 0x08,
       "AA FF FF 08 42 BD F2 21 06 F0 84 77 62 F0 CC 5B 17", "08 42 BD F2 21 06 F0 84 77 62 F0"},
      {"des, ragged, one byte of text", 1, 0x08,
       "AA FF FF 08 DF 84 9B AD 05 D4 A1 0A C0 44 1E CC 9C F7", "08 9C"},
      {"aes, no whole block", 2, 0x08,
       "AA FF FF 08 01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F CC AE D7",
       "08 01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F"},
      {"aes, nothing but padding", 2, 0x08,
       "AA FF FF 08 12 E0 8E 57 9A 9C FE E3 02 84 CE 10 27 45 1E 18 CC C3 85",
       "08 12 E0 8E 57 9A 9C FE E3 02 84 CE 10 27 45 1E 18"},
      {"sm4, broken padding after a good block", 3, 0x08,
       "AA FF FF 08 35 BD ED 67 F5 A5 72 57 C9 46 44 6B 75 2F 91 A7 9A 01 1E 02 AC 34 87 3B 3B 88 "
       "1D 8F DE "
       "43 70 94 CC 82 4B",
       "08 01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F 10"},
  };
  for (const Enciphered& c : cases) {
    ProtocalParser parser(keyFor(c.mode), c.mode);
    EXPECT_EQ(feed(parser, hex(c.bytes), c.code), c.package) << c.what << ", mode " << c.mode;
  }
}

TEST(PacketReceiver, OtherModesArePlain) {
  for (const int mode : {0, 4, -1}) {
    ProtocalParser parser(keyFor(mode), mode);
    EXPECT_EQ(feed(parser, hex(kAccepted08), 0x08), "08 01");
  }
  EXPECT_STREQ(keyFor(0), "12345678");
  ProtocalParser noKey(nullptr, 1);
  EXPECT_EQ(feed(noKey, hex(kAccepted08), 0x08), "08 01");
}

TEST(PacketReceiver, KeptBytesAreBounded) {
  constexpr std::size_t kBound = std::size_t{4} << 20;
  // A frame that is open when the bound is met survives it, unless it is too long by itself.
  ProtocalParser open;
  feed(open, std::string(kBound, 'x') + hex("CC 00 00 AA FF FF 08"), 0x08);
  EXPECT_EQ(feed(open, hex("01 CC 4E 42"), 0x08), "08 01");
  ProtocalParser endless;
  feed(endless, hex("AA FF FF 08"), 0x08);
  for (int i = 0; i < 8; ++i) {
    feed(endless, std::string(kBound / 8, 'x'), 0x08);
    EXPECT_LE(access::roomSize(endless), kBound);
  }
  EXPECT_EQ(feed(endless, hex("CC 04 2B"), 0x08), kNone);
  // The whole ones that were searched, for another command, do not.
  ProtocalParser other;
  feed(other, std::string(kBound, 'x') + hex("CC 00 00 AA FF FF 10 CC 34 0C 01 02"), 0x08);
  EXPECT_EQ(feed(other, "", 0x10), kNone);
}

TEST(PacketReceiver, NoBytesAreNoPackage) {
  ProtocalParser parser;
  EXPECT_EQ(parser.recvProc(nullptr, 0, 0x08), nullptr);
  EXPECT_EQ(parser.recvProc(nullptr, 5, 0x08), nullptr);
}

}  // namespace
