// SPDX-License-Identifier: MIT
#include "tools/key.h"

#include <gtest/gtest.h>

namespace tovi::tools {
namespace {

TEST(Key, IsACipherAndEightCharacters) {
  const struct {
    const char* text;
    Cipher cipher;
    const char* key;
  } cases[] = {{"none", Cipher::None, ""},
               {"des:12345678", Cipher::Des, "12345678"},
               {"aes:a:b c\"d#", Cipher::Aes, "a:b c\"d#"},
               {"sm4::2345678", Cipher::Sm4, ":2345678"}};
  for (const auto& [text, cipher, key] : cases) {
    const auto parsed = parseKey(text);
    ASSERT_TRUE(parsed) << text;
    EXPECT_EQ(parsed->cipher, cipher) << text;
    EXPECT_EQ(parsed->text, key) << text;
  }
}

TEST(Key, IsRefusedUnlessWhole) {
  for (const char* text :
       {"", "des", "des:", "des:1234567", "des:123456789", "DES:12345678", "none:", "none:12345678",
        "rsa:12345678", ":12345678", "12345678", "des12345678", " none"}) {
    EXPECT_FALSE(parseKey(text)) << text;
  }
}

}  // namespace
}  // namespace tovi::tools
