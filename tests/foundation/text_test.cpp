// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <climits>
#include <locale>

#include <tovisdk/text.h>

#include "platform/text.h"

namespace {

using Fields = std::vector<std::string>;

TEST(Text, SplitKeepsEveryField) {
  EXPECT_EQ(split("a,b,c", ","), (Fields{"a", "b", "c"}));
  EXPECT_EQ(split(",a,,b,", ","), (Fields{"", "a", "", "b", ""}));
  EXPECT_EQ(split("a--b-c", "--"), (Fields{"a", "b-c"}));
  EXPECT_EQ(split("abc", ","), Fields{"abc"});
  EXPECT_EQ(split("abc", ""), Fields{"abc"});
  EXPECT_EQ(split("", ","), Fields{});
  EXPECT_EQ(split(",", ","), (Fields{"", ""}));
}

TEST(Text, OnlyOneAndTrueAreTrue) {
  for (const char* yes : {"1", "true", "TRUE", "tRuE"}) EXPECT_TRUE(string_To_Bool(yes)) << yes;
  for (const char* no : {"", "0", "2", "11", "tru", "truex", " true", "yes", "t\x12ue"}) {
    EXPECT_FALSE(string_To_Bool(no)) << no;
  }
}

// A host may have chosen a locale that groups digits.
struct Grouping : std::numpunct<char> {
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

TEST(Text, WholeNumbersSaturateAndIgnoreTheLocale) {
  const std::locale before = std::locale::global(std::locale(std::locale::classic(), new Grouping));
  EXPECT_EQ(toviStoll("1700000000000"), 1700000000000);
  EXPECT_EQ(toviStoll("1.700"), 1);
  std::locale::global(before);
  EXPECT_EQ(toviStoll("  -42rest"), -42);
  EXPECT_EQ(toviStoll(""), 0);
  EXPECT_EQ(toviStoll("abc"), 0);
  EXPECT_EQ(toviStoll("99999999999999999999"), LLONG_MAX);
  EXPECT_EQ(toviStoll("-99999999999999999999"), LLONG_MIN);
}

TEST(Text, FormatHasNoLimit) {
  const std::string word(100000, 'x');
  EXPECT_EQ(format_string("%s-%02d", word.c_str(), 7), word + "-07");
  EXPECT_EQ(format_string(""), "");
  EXPECT_EQ(format_string("100%%"), "100%");
}

TEST(Text, ConversionsFallBackToTheTextItself) {
  EXPECT_EQ(UTF8_To_string("\xFF\xFE"), "\xFF\xFE");
  // Which texts are none in the local code page depends on the system; 0xFF is a letter in some.
  const std::string odd = "\xE9\x99\x90\xFF";
  EXPECT_EQ(string_To_UTF8(odd), tovi::platform::localToUtf8(odd).value_or(odd));
}

TEST(Text, HexPrintsBytesUnpadded) {
  testing::internal::CaptureStdout();
  printfHexCharArray("\x0A\xFF\x00", 3);
  printfHexCharArray(nullptr, 3);
  printfHexCharArray("x", -1);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "AFF0");
}

TEST(Text, ReleaseIsNullSafe) {
  char* array = new char[3];
  deleteArry(&array);
  EXPECT_EQ(array, nullptr);
  deleteArry(&array);
  deleteArry(nullptr);
}

}  // namespace
