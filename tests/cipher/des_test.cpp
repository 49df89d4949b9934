// SPDX-License-Identifier: MIT
#include "cipher/des.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/hex.h"

namespace tovi::cipher {
namespace {

using tovi::test::hex;

constexpr char kKey[] = "12345678";
constexpr char kText[] = "The quick brown fox jumps over a dog";
constexpr char kCiphered[] =
    "a362a7a411b0df0f105c178d146401f092ac4c43a15e6f5dfc0e761a0940afce64d8a4f62deba126";

struct Result {
  int value;
  std::string out;
};

// Deciphers what ends its heap block into a buffer of exactly that size, which ends before guard
// bytes.
Result decrypt(std::string_view ciphered, std::string_view key) {
  const std::vector<char> in(ciphered.begin(), ciphered.end());
  std::vector<char> out(in.size() + 8, '#');
  const int value = desDecrypt({in.data(), in.size()}, key, std::span(out).first(in.size()));
  EXPECT_EQ(std::string(out.end() - 8, out.end()), "########");
  return {value, {out.data(), ciphered.size()}};
}

// The last two hold a published vector each, of a weak key and of an ordinary one: their first
// plaintext block is combined with the key beforehand, which the start of the chain undoes.
TEST(Des, MatchesKnownCiphertextsBothWays) {
  const std::string weakKey = hex("0101010101010101");
  const std::string plainKey = hex("133457799bbcdff1");
  const struct {
    std::string_view key;
    std::string plain, ciphered;
  } cases[] = {
      {kKey, "A", "d3692c06151dcd95"},
      {kKey, "ABCDEFG", "5baa6131e9e45435"},
      {kKey, "ABCDEFGH", "f7e9931158fc2586896cd81b0759b2ad"},
      {kKey, "ABCDEFGHI", "f7e9931158fc25864ad4c726e4904539"},
      {kKey, kText, kCiphered},
      {"12345678 and more", "A", "d3692c06151dcd95"},
      {std::string_view("123456", 3), "ABC", "4ec1435c09a99f97"},
      {weakKey, hex("8101010101010101"), "95f8a5e5dd31d900210fa61eda7d4365"},
      {plainKey, hex("1217121e1217121e"), "85e813540f0ab40577a2a9308f18d27b"},
  };
  for (const auto& [key, plain, ciphered] : cases) {
    SCOPED_TRACE(ciphered);
    const std::string expected = hex(ciphered);
    std::vector<char> out(expected.size() + 8, '#');
    ASSERT_EQ(desEncrypt(plain, key, std::span(out).first(expected.size())),
              static_cast<int>(expected.size()));
    EXPECT_EQ(std::string(out.begin(), out.end()), expected + "########");

    const Result back = decrypt(expected, key);
    ASSERT_EQ(back.value, static_cast<int>(plain.size()));
    EXPECT_EQ(back.out.substr(0, plain.size()), plain);
  }
}

TEST(Des, DeciphersARaggedTailAsIfZerosFollowed) {
  const struct {
    int value;
    std::string plain;
  } cases[] = {
      {1 - 0xa8, "a8"},
      {7 - 0x1d, "d0ac1656f5bb1d"},
      {15 - 0x36, "546865207175696390391f7c2be536"},
      {31 - 0xab, "54686520717569636b2062726f776e20666f78206a756d701a7c52c7413bab"},
  };
  const std::string message = hex(kCiphered);
  for (const auto& [value, plain] : cases) {
    const Result result = decrypt(std::string_view(message).substr(0, plain.size() / 2), kKey);
    EXPECT_EQ(result.value, value) << plain;
    EXPECT_EQ(result.out, hex(plain));
  }
}

TEST(Des, ReportsLengthsAsTheyCome) {
  std::vector<char> out(16);
  const std::span<char> room(out);
  EXPECT_EQ(decrypt(hex("e3ff6ca2f20a1196"), kKey).value, 8 - 200);
  EXPECT_EQ(desDecrypt("", kKey, {}), 0);
  EXPECT_EQ(desDecrypt(hex("e3ff6ca2f20a1196"), kKey, room.first(7)), -1);
  EXPECT_EQ(desEncrypt("ABCDEFGH", kKey, room.first(15)), -1);
  EXPECT_EQ(desEncrypt("ABCDEFG", kKey, room.first(7)), -1);
}

}  // namespace
}  // namespace tovi::cipher
