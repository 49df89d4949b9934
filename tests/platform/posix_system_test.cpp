// SPDX-License-Identifier: MIT
// Locales and standard streams, which a test can set on POSIX alone.
#include <gtest/gtest.h>
#include <tovisdk/text.h>
#include <unistd.h>

#include <clocale>
#include <cstdio>
#include <optional>
#include <string>

#include "platform/console.h"
#include "platform/text.h"

namespace tovi::platform::test {
namespace {

class Locale {
 public:
  explicit Locale(const char* name)
      : before_(std::setlocale(LC_CTYPE, nullptr)), set_(std::setlocale(LC_CTYPE, name)) {}
  ~Locale() { std::setlocale(LC_CTYPE, before_.c_str()); }
  Locale(const Locale&) = delete;
  Locale& operator=(const Locale&) = delete;

  bool isSet() const { return set_ != nullptr; }

 private:
  std::string before_;
  const char* set_;
};

TEST(PosixText, TakesThePlainLocaleAsUtf8) {
  for (const char* name : {"C", "POSIX", "C.UTF-8"}) {
    const Locale locale(name);
    if (!locale.isSet()) continue;
    EXPECT_EQ(localToUtf8("\xE4\xBA\xAE"), "\xE4\xBA\xAE") << name;
    EXPECT_EQ(utf8ToLocal("\xE4\xBA\xAE"), "\xE4\xBA\xAE") << name;
    EXPECT_EQ(localToUtf8("\xE9"), std::nullopt) << name;
    EXPECT_EQ(string_To_UTF8("\xE4\xBA\xAE"), "\xE4\xBA\xAE") << name;
    EXPECT_EQ(string_To_UTF8("\xFF\xFE"), "\xFF\xFE") << name << ", which comes back as it was";
  }
}

TEST(PosixText, ConvertsToTheCodeSetOfTheLocale) {
  const Locale locale("zh_CN.GBK");
  if (!locale.isSet()) GTEST_SKIP() << "no GBK locale on this system";
  EXPECT_EQ(utf8ToLocal("\xE4\xBA\xAE a"), "\xC1\xC1 a");
  EXPECT_EQ(localToUtf8("\xC1\xC1 a"), "\xE4\xBA\xAE a");
  EXPECT_EQ(utf8ToLocal("\xF0\x9F\x92\xA1"), std::nullopt) << "GBK has no light bulb";
  EXPECT_EQ(utf8ToLocal("\xED\xA0\x80"), std::nullopt);
  EXPECT_EQ(localToUtf8("\xC1"), std::nullopt) << "half a character";
  std::string local, utf8;
  for (int i = 0; i < 5000; ++i) local += "\xC1\xC1", utf8 += "\xE4\xBA\xAE";
  EXPECT_EQ(localToUtf8(local), utf8);
  EXPECT_EQ(utf8ToLocal(utf8), local);
}

TEST(PosixConsole, KeepsStrayLinesOutOfTheResults) {
  const auto printBoth = [] {
    // Only standard error of the child is seen by the test, so results are led there.
    ::dup2(STDERR_FILENO, STDOUT_FILENO);
    std::FILE* results = takeStandardOutput();
    if (results == nullptr) ::_exit(1);
    std::fputs("stray", stdout);
    std::fflush(stdout);
    std::fwrite("re\r\nsult", 1, 8, results);
    std::fclose(results);
    ::_exit(0);
  };
  EXPECT_EXIT(printBoth(), testing::ExitedWithCode(0), "^re\r\nsult$");
}

TEST(PosixConsole, TellsATerminalFromAFile) {
  EXPECT_FALSE(isTerminal(nullptr));
  std::FILE* file = std::fopen("/dev/null", "w");
  ASSERT_NE(file, nullptr);
  EXPECT_FALSE(isTerminal(file));
  std::fclose(file);
  std::FILE* terminal = std::fopen("/dev/ptmx", "r+");
  if (terminal == nullptr) GTEST_SKIP() << "no terminal to be had";
  EXPECT_TRUE(isTerminal(terminal));
  std::fclose(terminal);
}

}  // namespace
}  // namespace tovi::platform::test
