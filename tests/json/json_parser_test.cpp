// SPDX-License-Identifier: MIT
#include "json/json_parser.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstddef>
#include <initializer_list>
#include <limits>
#include <locale>
#include <string>
#include <string_view>

#include "json/json_printer.h"

using namespace std::string_literals;

namespace tovi::json {
namespace {

std::string reprint(std::string_view text) {
  const auto result = parse(text);
  return result.root ? print(*result.root) : "error at " + std::to_string(result.stop);
}

struct Case {
  std::string text;
  std::string expected;
};

void expectReprints(std::initializer_list<Case> cases) {
  for (const auto& [text, expected] : cases) EXPECT_EQ(reprint(text), expected) << text;
}

void expectErrorsAt(std::size_t position, std::initializer_list<std::string> texts) {
  for (const auto& text : texts) {
    const auto result = parse(text);
    EXPECT_EQ(result.root, nullptr) << text;
    EXPECT_EQ(result.stop, position) << text;
  }
}

TEST(JsonParser, AcceptsEveryKindOfValue) {
  expectReprints({
      {" \t\r\n[ null , true,false ] \n", "[null,true,false]"},
      {"{ \"a\" : { } , \"b\":[ ], \"\":\"\" }", R"({"a":{},"b":[],"":""})"},
      {R"({"k":1,"K":2,"k":3})", R"({"k":1,"K":2,"k":3})"},
      {"\"alone\"", "\"alone\""},
      {" null", "null"},
  });
}

TEST(JsonParser, RefusesWhatIsNotOneValue) {
  expectErrorsAt(0, {"", "nul", "True", "]", "'a'", "\xEF\xBB\xBF[]", "\0[1]"s});
  expectErrorsAt(1, {"[", "{a:1}"});
  expectErrorsAt(2, {"  ", "1 2", "[1}"});
  expectErrorsAt(3, {"[1,]", "[1 2]", "[1]\0"s});
  expectErrorsAt(4, {"nulls", "{\"a\"1}"});
  expectErrorsAt(5, {"{\"a\":}"});
  expectErrorsAt(7, {"{\"a\":1,}"});
}

TEST(JsonParser, ReadsStrings) {
  expectReprints({
      {R"("\"\\\/\b\f\n\r\t")", R"("\"\\/\b\f\n\r\t")"},
      {R"("\u0041\u00e9\u20AC\uD83D\uDE00\uFFFF")", "\"A\u00e9\u20ac\U0001F600\xEF\xBF\xBF\""},
      {R"("\u007F\u0080\u07FF\u0800")", "\"\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\""},
      {R"("a\u0000b\u001F")", R"("a\u0000b\u001f")"},
      {"\"\xFF\x80\x7F\"", "\"\xFF\x80\x7F\""},
      {R"({"\u0061\n":1})", R"({"a\n":1})"},
  });
  EXPECT_EQ(parse(R"("a\u0000b")").root->text, "a\0b"s);
}

// Controllers write them so.
TEST(JsonParser, PassesRawControlCharactersThrough) {
  for (const std::string& text : {"a\nb"s, "a\0b"s, "\x1F"s, "\t"s}) {
    const auto result = parse("\"" + text + "\"");
    ASSERT_NE(result.root, nullptr) << text;
    EXPECT_EQ(result.root->text, text);
  }
}

TEST(JsonParser, RefusesBrokenStrings) {
  expectErrorsAt(
      1, {R"("\x")", R"("\U0041")", R"("\u12")", R"("\u12G4")", R"("\u-123")", R"("\u 123")",
          R"("\uD83D")", R"("\uDE00")", R"("\uD83Dabcdef")", R"("\uD83D\uD83D")",
          R"("\uD83D\u0041")", R"("\uD83D\uE000")", R"("\uD83D\u)"});
  expectErrorsAt(4, {"\"abc", "\"abc\\"});
}

TEST(JsonParser, ReadsNumbers) {
  expectReprints({
      {"[0,-0,7,-12]", "[0,0,7,-12]"},
      {"[9223372036854775807,18446744073709551615]", "[9223372036854775807,18446744073709551615]"},
      {"-9223372036854775808", "-9223372036854775808"},
      {"18446744073709551616", "1.844674e+19"},
      {"-9223372036854775809", "-9.223372e+18"},
      {"[1.0,1.5,-2.25,1e2,1E+2,12e-1]",
       "[1.000000,1.500000,-2.250000,100.000000,100.000000,1.200000]"},
      {"[0.0,1e-6,9.9e-7,1e9,1.1e9,-1e300]",
       "[0.000000e+00,0.000001,9.900000e-07,1000000000.000000,1.100000e+09,-1.000000e+300]"},
      {"5e-324", "4.940656e-324"},
  });
  EXPECT_TRUE(parse("2147483647").root->isSigned);
  EXPECT_FALSE(parse("2147483648").root->isSigned);
  EXPECT_EQ(parse("0.1").root->number, 0.1);
  EXPECT_EQ(parse("1.7976931348623157e308").root->number, std::numeric_limits<double>::max());
}

TEST(JsonParser, RefusesBrokenNumbers) {
  expectErrorsAt(0, {"+1", ".5", "NaN"});
  expectErrorsAt(1, {"-", "01", "0x10", "1,5", "-Infinity"});
  expectErrorsAt(2, {"1.", "-01", "1e", "1.e1"});
  expectErrorsAt(3, {"1e+"});
}

TEST(JsonParser, RefusesOverflowAndTakesUnderflowAsZero) {
  const std::string zeros(400, '0');
  expectErrorsAt(0, {"-1e99999999999999999999", "1" + zeros, "0.1e400", "1e2147483647"});
  expectErrorsAt(1, {"[1e999]"});
  for (const auto& zero : {"0e999"s, "1e-999"s, "-1.5e-99999999999999999999"s, "0." + zeros + "1",
                           "0." + zeros + "1e+9"}) {
    EXPECT_EQ(reprint(zero), "0.000000e+00") << zero;
  }
  EXPECT_EQ(reprint("1" + zeros + ".0e-400"), "1.000000");
}

TEST(JsonParser, BoundsNesting) {
  const auto nested = [](std::size_t depth) {
    return std::string(depth, '[') + std::string(depth, ']');
  };
  EXPECT_EQ(reprint(nested(512)), nested(512));
  EXPECT_EQ(reprint(nested(513)), "error at 512");
  EXPECT_EQ(reprint(std::string(100'000, '[')), "error at 512");
  std::string objects;
  for (int i = 0; i < 100'000; ++i) objects += "{\"a\":";
  EXPECT_EQ(reprint(objects), "error at 2560");
  std::string siblings = "[[]";
  for (int i = 0; i < 1000; ++i) siblings += ",[]";
  EXPECT_EQ(reprint(siblings + "]"), siblings + "]");
}

struct CommaDecimals : std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

TEST(JsonParser, KeepsToThePointInEveryLocale) {
  const std::string before = std::setlocale(LC_ALL, nullptr);
  const auto streams = std::locale::global(std::locale(std::locale(), new CommaDecimals));
  for (const char* name : {"de_DE.UTF-8", "de_DE", "German_Germany"}) {
    if (std::setlocale(LC_ALL, name) != nullptr) break;
  }
  const auto printed = reprint("[1.5,1234567,2.5e10]");
  std::locale::global(streams);
  std::setlocale(LC_ALL, before.c_str());
  EXPECT_EQ(printed, "[1.500000,1234567,2.500000e+10]");
}

}  // namespace
}  // namespace tovi::json
