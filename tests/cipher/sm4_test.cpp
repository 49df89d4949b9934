// SPDX-License-Identifier: MIT
#include "cipher/sm4.h"

#include <gtest/gtest.h>
#include <openssl/err.h>

#include <string>
#include <vector>

#include "tests/support/hex.h"

namespace tovi::cipher {
namespace {

using tovi::test::hex;

constexpr char kKey[] = "83aa400af464c76d";

std::string decrypted(std::string_view ciphered, std::string_view key) {
  std::vector<char> out(ciphered.size() + 24, '#');
  const int size = Sm4(key).decrypt(ciphered, std::span(out).first(ciphered.size() + 16));
  EXPECT_EQ(std::string(out.end() - 8, out.end()), "########");
  return size < 0 ? "refused" : std::string(out.data(), static_cast<std::size_t>(size));
}

// The last holds the published vector, which enciphers its own key: the chain makes it of zeros.
TEST(Sm4, MatchesKnownCiphertextsBothWays) {
  const std::string vectorKey = hex("0123456789abcdeffedcba9876543210");
  const struct {
    std::string_view key;
    std::string plain, ciphered;
  } cases[] = {
      {kKey, "", "221fb23f7589a34eb35811c2544bf842"},
      {kKey, "ABCDEFGHIJKLMNO", "338427b0e0b5917e2d9d936c6276e0c4"},
      {kKey, "ABCDEFGHIJKLMNOP",
       "4563182f07e35cd13cf78a4cdcc9a066ae1e49d69141fecb01460f6748c3a0c6"},
      {kKey, "ABCDEFGHIJKLMNOPQ",
       "4563182f07e35cd13cf78a4cdcc9a066165d572ea3a04ad6e08eacdf32e95e3f"},
      {"83aa400af464c76d and more", "", "221fb23f7589a34eb35811c2544bf842"},
      {std::string_view("123456", 3), "ABC", "74098c308e9533d0d286cb802dd5b720"},
      {vectorKey, std::string(16, '\0'),
       "681edf34d206965e86b3e94f536e4246677d307e844d7aa24579d556490dc7aa"},
  };
  for (const auto& [key, plain, ciphered] : cases) {
    SCOPED_TRACE(ciphered);
    const std::string expected = hex(ciphered);
    std::vector<char> out(expected.size() + 8, '#');
    ASSERT_EQ(Sm4(key).encrypt(plain, std::span(out).first(expected.size())),
              static_cast<int>(expected.size()));
    EXPECT_EQ(std::string(out.begin(), out.end()), expected + "########");
    EXPECT_EQ(decrypted(expected, key), plain);
  }
}

TEST(Sm4, LeavesOutALastBlockThatFails) {
  ERR_clear_error();
  const std::string message =
      hex("4563182f07e35cd13cf78a4cdcc9a066f4ae333c667d68c594716373e1c90ab3");
  const std::string first = "ABCDEFGHIJKLMNOP";
  const struct {
    std::size_t size;
    std::string plain;
  } cases[] = {{0, ""}, {1, ""}, {15, ""}, {16, ""}, {17, first}, {31, first}, {32, first}};
  for (const auto& [size, plain] : cases) {
    EXPECT_EQ(decrypted(std::string_view(message).substr(0, size), kKey), plain) << size;
  }
  EXPECT_EQ(decrypted(message + "ragged", kKey), first + "QRSTUVWXYZabcdef");
  EXPECT_EQ(ERR_peek_error(), 0UL) << "the error queue belongs to the host";
}

TEST(Sm4, RefusesASmallOutput) {
  std::vector<char> out(32);
  const std::span<char> room(out);
  EXPECT_EQ(Sm4(kKey).encrypt("ABCDEFGHIJKLMNOP", room.first(31)), -1);
  EXPECT_EQ(Sm4(kKey).decrypt("ABCDEFGHIJKLMNOP", room.first(31)), -1);
}

}  // namespace
}  // namespace tovi::cipher
