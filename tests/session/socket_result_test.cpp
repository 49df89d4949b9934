// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <tovisdk/log_control.h>

#include <memory>

#include <tovisdk/socket_result.h>
#include <tovisdk/text.h>

#include "tests/support/hex.h"

namespace {

using tovi::test::hex;

char* newBytes(const std::string& bytes) {
  char* array = new char[bytes.size()];
  bytes.copy(array, bytes.size());
  return array;
}

class Result : public testing::Test {
 protected:
  static std::unique_ptr<SocketResult> of(const char* text) {
    const std::string bytes = hex(text);
    return std::make_unique<SocketResult>(newBytes(bytes), static_cast<int>(bytes.size()));
  }
};

TEST_F(Result, SuccessIsTheThirdByte) {
  EXPECT_TRUE(of("10 01 01")->isSetSuccess());
  EXPECT_TRUE(of("10 01 01 07")->isSetSuccess());
  for (const char* no : {"", "01", "01 01", "10 01 00", "10 01 02", "10 01 FF"}) {
    EXPECT_FALSE(of(no)->isSetSuccess()) << no;
  }
  EXPECT_FALSE(SocketResult(nullptr, 5).isSetSuccess());
}

TEST_F(Result, TextsEndWithThePackage) {
  const auto result = of("7F 01 41 42");
  char* text = result->toStrChar(2);
  EXPECT_STREQ(text, "AB");
  deleteArry(&text);
  char* nothing = result->toStrChar(4);
  EXPECT_STREQ(nothing, "");
  deleteArry(&nothing);
  EXPECT_EQ(result->toStrChar(5), nullptr);
  EXPECT_EQ(result->toStrChar(-1), nullptr);
  EXPECT_EQ(of("7F 41 00 42")->toStr(1), "A");
  EXPECT_EQ(result->toStr(9), "");
  EXPECT_EQ(SocketResult(nullptr, 5).toStr(1), "");
}

TEST_F(Result, HexTexts) {
  EXPECT_EQ(of("0A FF 00")->toStrT(0), "0AFF00");
  EXPECT_EQ(of("0A FF")->toStrT(-7), "0AFF");
  EXPECT_EQ(of("0A FF")->toStrT(1), "FF");
  EXPECT_EQ(of("0A FF")->toStrT(2), "");
  EXPECT_EQ(SocketResult(nullptr, 5).toStrT(0), "");
  const auto any = of("00");
  EXPECT_EQ(any->DecIntToHexStr(255), "FF");
  EXPECT_EQ(any->DecIntToHexStr(0), "0");
  EXPECT_EQ(any->DecIntToHexStr(0x7FFFFFFF), "7FFFFFFF");
  EXPECT_EQ(any->DecIntToHexStr(-1), "0");
}

TEST(ResultLine, IsPrintedByEveryDestruction) {
  testing::internal::CaptureStdout();
  delete new SocketResult(newBytes("x"), 1);
  delete new SocketResult(nullptr, 0);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "SocketResult delete\nSocketResult delete\n");
}

TEST(ResultLine, IsNotPrintedForAHostThatWantsNone) {
  testing::internal::CaptureStdout();
  tovi_set_console(0);
  delete new SocketResult(nullptr, 0);
  tovi_set_console(1);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

}  // namespace
