// SPDX-License-Identifier: MIT
#include "tools/printable.h"

#include <gtest/gtest.h>

namespace tovi::tools {
namespace {

TEST(Printable, KeepsStrangersOffTheTerminal) {
  const std::pair<std::string, std::string> texts[] = {
      {"Gate 7 \xE8\xB7\xAF\xF0\x9F\x9A\xA6 \xC2\xA0",
       "Gate 7 \xE8\xB7\xAF\xF0\x9F\x9A\xA6 \xC2\xA0"},
      {"\x1B[2J\x1B]0;title\x07", "\\x1B[2J\\x1B]0;title\\x07"},
      {std::string("\r\0\x7F", 3), "\\x0D\\x00\\x7F"},
      {"\xC2\x9B"
       "31m\xC2\x9F",
       "\\xC2\\x9B31m\\xC2\\x9F"},                            // control characters in UTF-8
      {"\xC3\xFB\xB5", "\\xC3\\xFB\\xB5"},                    // another encoding
      {"\xE8\xB7", "\\xE8\\xB7"},                             // cut
      {"\xC0\x8A\xE0\x80\x8A", "\\xC0\\x8A\\xE0\\x80\\x8A"},  // a line feed the long way round
      {"\xF0\x8F\xBF\xBF", "\\xF0\\x8F\\xBF\\xBF"},
      {"\xED\xA0\x80\xF4\x90\x80\x80", "\\xED\\xA0\\x80\\xF4\\x90\\x80\\x80"},
  };
  for (const auto& [text, shown] : texts) {
    EXPECT_EQ(printable(text), shown);
    EXPECT_EQ(printable(text, Breaks::Kept), shown);
  }
}

TEST(Printable, KeepsLineEndsAndTabsWhereTheyAreWanted) {
  EXPECT_EQ(printable("a\tb\nc"), "a\\x09b\\x0Ac");
  EXPECT_EQ(printable("a\tb\nc\v", Breaks::Kept), "a\tb\nc\\x0B");
}

}  // namespace
}  // namespace tovi::tools
