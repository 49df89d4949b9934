// SPDX-License-Identifier: MIT
#include "cipher/aes.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/hex.h"

namespace tovi::cipher {
namespace {

using tovi::test::hex;

constexpr char kKey[] = "83aa400af464c76d";
constexpr char kBlockOfA[] = "cb5feffdea9900cd0159bf708cf64714";

std::string textOf(int size, const std::vector<char>& out) {
  if (size < 0) return "refused";
  EXPECT_EQ(out.at(static_cast<std::size_t>(size)), '\0');
  return {out.data(), static_cast<std::size_t>(size)};
}

std::string encrypted(const Aes128& aes, const std::string& plain) {
  std::vector<char> out(plain.size() + 17, '#');
  return textOf(aes.encrypt(plain, out), out);
}

std::string decrypted(const Aes128& aes, const std::string& ciphered) {
  std::vector<char> out(ciphered.size() + 1, '#');
  return textOf(aes.decrypt(ciphered, out), out);
}

std::vector<const aes::Engine*> engines() {
  std::vector<const aes::Engine*> all{&aes::portableEngine()};
  if (aes::hardwareEngine()) all.push_back(aes::hardwareEngine());
  return all;
}

TEST(Aes128, MatchesPublishedVectorsOnEveryEngine) {
  const struct {
    std::string key, plain, ciphered;
  } cases[] = {
      {"000102030405060708090a0b0c0d0e0f", "00112233445566778899aabbccddeeff",
       "69c4e0d86a7b0430d8cdb78070b4c55a"},
      {"2b7e151628aed2a6abf7158809cf4f3c", "3243f6a8885a308d313198a2e0370734",
       "3925841d02dc09fbdc118597196a0b32"},
      {"2b7e151628aed2a6abf7158809cf4f3c",
       "6bc1bee22e409f96e93d7e117393172aae2d8a571e03ac9c9eb76fac45af8e51"
       "30c81c46a35ce411e5fbc1191a0a52eff69f2445df4f9b17ad2b417be66c3710",
       "3ad77bb40d7a3660a89ecaf32466ef97f5d3d58503b9699de785895a96fdbaaf"
       "43b1cd7f598ece23881b00e3ed0306887b0c785e27e8ad3f8223207104725dd4"},
  };
  for (const aes::Engine* engine : engines()) {
    for (const auto& [key, plain, ciphered] : cases) {
      SCOPED_TRACE(plain);
      const Aes128 aes(hex(key), *engine);
      const std::string out = encrypted(aes, hex(plain));
      ASSERT_EQ(out.size(), plain.size() / 2 + 16);
      EXPECT_EQ(out.substr(0, plain.size() / 2), hex(ciphered));
      EXPECT_EQ(decrypted(aes, out), hex(plain));
    }
  }
}

TEST(Aes128, PadsToWholeBlocks) {
  const struct {
    std::string_view key;
    std::string plain, ciphered;
  } cases[] = {
      {kKey, "", "23486d33863abfb2ffbb0e88d92be158"},
      {kKey, "ABCDEFGHIJKLMNO", "25d755c5ce7f4e4013084f6a54ba311d"},
      {kKey, "ABCDEFGHIJKLMNOP",
       "aa61b5108a2f480259a05f8f2953c47023486d33863abfb2ffbb0e88d92be158"},
      {kKey, "ABCDEFGHIJKLMNOPQ",
       "aa61b5108a2f480259a05f8f2953c470af5dfadb93b8baac9967a24cd28974b3"},
      {"83aa400af464c76dtoo long", "", "23486d33863abfb2ffbb0e88d92be158"},
      {std::string_view("123456", 3), "ABC", "ba6c3ead399c9f3d0b60ff06c1c3ecb1"},
  };
  for (const auto& [key, plain, ciphered] : cases) {
    SCOPED_TRACE(ciphered);
    const Aes128 aes(key);
    EXPECT_EQ(encrypted(aes, plain), hex(ciphered));
    EXPECT_EQ(decrypted(aes, hex(ciphered)), plain);
  }
}

// Blocks of 'A' whose last byte is the given one; nothing else of the padding counts.
TEST(Aes128, DecryptTrustsOnlyAPlausibleLastByte) {
  const struct {
    int last;
    std::size_t blocksBefore;
    std::string lastBlock;
    std::string plain;
  } cases[] = {
      {0, 1, "0afe5b20d172b2150aa64d49bc52c174", "refused"},
      {16, 1, "944e193aa81bf739a1366ee363be5d3e", "AAAAAAAAAAAAAAAA"},
      {17, 1, "25fb1104141bb5b740f1ab4c06e147fc", "AAAAAAAAAAAAAAA"},
      {32, 1, "815a68d91c6eecd3e6f4426b2e38cff9", ""},
      {33, 1, "0c25637379ed51aba2c1c38c7c9ae224", "refused"},
      {255, 1, "06c0779b543040d32a1cec9957ebb2da", "refused"},
      {200, 15, "c05f28f791b5745671f3bfaa5fe6678a", std::string(56, 'A')},
  };
  for (const aes::Engine* engine : engines()) {
    for (const auto& [last, blocksBefore, lastBlock, plain] : cases) {
      std::string ciphered;
      for (std::size_t i = 0; i < blocksBefore; ++i) ciphered += hex(kBlockOfA);
      ciphered += hex(lastBlock);
      EXPECT_EQ(decrypted(Aes128(kKey, *engine), ciphered), plain) << last;
    }
  }
}

TEST(Aes128, RefusesWhatItCannotHold) {
  const Aes128 aes(kKey);
  std::vector<char> out(65600);
  const std::span<char> room(out);
  const std::string zeros(65520, '\0');
  const std::string_view text(zeros);
  EXPECT_EQ(aes.encrypt({}, room), -1);
  EXPECT_EQ(aes.encrypt(text.substr(0, 65519), room), 65520);
  EXPECT_EQ(aes.encrypt(text, room), -1);
  EXPECT_EQ(aes.encrypt(text.substr(0, 16), room.first(33)), 32);
  EXPECT_EQ(aes.encrypt(text.substr(0, 16), room.first(32)), -1);

  const std::string ciphered = hex("23486d33863abfb2ffbb0e88d92be158");
  EXPECT_EQ(aes.decrypt({}, room), -1);
  EXPECT_EQ(aes.decrypt("", room), -1);
  EXPECT_EQ(aes.decrypt(ciphered, room.first(17)), 0);
  EXPECT_EQ(aes.decrypt(ciphered, room.first(16)), -1);
}

// The output already holds the missing bytes, and 'A' would do as a pad of so long a message.
TEST(Aes128, RefusesAnIncompleteBlock) {
  const std::string block = hex(kBlockOfA);
  std::string out = block + block + block + block + block + "#";
  const std::string ciphered = out.substr(0, 79);
  EXPECT_EQ(Aes128(kKey).decrypt(ciphered, out), -1);
}

}  // namespace
}  // namespace tovi::cipher
