// SPDX-License-Identifier: MIT
#include "cipher/md5.h"

#include <gtest/gtest.h>

#include <string>

namespace tovi::cipher {
namespace {

TEST(Md5, DigestsTextWholeAndByteByByte) {
  const struct {
    std::string text;
    std::string digest;
  } cases[] = {
      {"", "d41d8cd98f00b204e9800998ecf8427e"},
      {"abc", "900150983cd24fb0d6963f7d28e17f72"},
      {"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789",
       "d174ab98d277d9f5a5611c2c9f419d9f"},
      {"12345678901234567890123456789012345678901234567890123456789012345678901234567890",
       "57edf4a22be3c955ac49da2e2107b67a"},
      {std::string("\0\xff\x80", 3), "4fd64cb80c3f86e1e9d0f559af8b370f"},
      {std::string(55, 'a'), "ef1772b6dff9a122358552954ad0df65"},
      {std::string(56, 'a'), "3b0c8ac703f828b04c6c197006d17218"},
      {std::string(64, 'a'), "014842d480b571495a4a0363793f7367"},
      {std::string(120, 'a'), "5f61c0ccad4cac44c75ff505e1f1e537"},
  };
  for (const auto& [text, digest] : cases) {
    SCOPED_TRACE(text);
    Md5 whole;
    whole.update(text);
    EXPECT_EQ(whole.hexDigest(), digest);

    Md5 pieces;
    for (const char& byte : text) pieces.update({&byte, 1});
    EXPECT_EQ(pieces.hexDigest(), digest);
  }
}

TEST(Md5, KeepsItsDigestOnceTaken) {
  Md5 md5;
  md5.update("abc");
  EXPECT_EQ(md5.hexDigest(), "900150983cd24fb0d6963f7d28e17f72");
  md5.update(std::string(64, 'd'));
  EXPECT_EQ(md5.hexDigest(), "900150983cd24fb0d6963f7d28e17f72");
}

TEST(Md5, DerivedKeyIsTheMiddleOfTheDigestText) {
  EXPECT_EQ(derivedKey("12345678"), "83aa400af464c76d");
}

}  // namespace
}  // namespace tovi::cipher
