// SPDX-License-Identifier: MIT
// Locales, standard streams and odd files, which a test can have on POSIX alone.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <tovisdk/text.h>
#include <unistd.h>

#include <array>
#include <clocale>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <thread>

#include "platform/console.h"
#include "platform/files.h"
#include "platform/text.h"
#include "tests/support/run_program.h"
#include "tests/transfer/temporary_folder.h"

namespace tovi::platform::test {
namespace {

using tovi::test::runProgram;
using tovi::test::TemporaryFolder;

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
    EXPECT_EQ(string_To_UTF8("\xFF\xFE"), "\xFF\xFE") << name << ", which comes back as it was";
  }
}

// The locale says no more than that its code set is GBK. It is made on the spot, for few systems
// have one; its compiler complains of so poor a source, and makes it all the same.
TEST(PosixText, ConvertsToTheCodeSetOfTheLocale) {
  const TemporaryFolder folder;
  const std::string charmap = folder.file("<code_set_name> GBK\nCHARMAP\nEND CHARMAP\n", "charmap");
  const std::string source = folder.file("LC_CTYPE\nEND LC_CTYPE\n", "source");
  runProgram("/usr/bin/localedef", {"-c", "-i", source, "-f", charmap, folder.path("poor.GBK")},
             {"", "/dev/null", "/dev/null"});
  ::setenv("LOCPATH", folder.path().c_str(), 1);
  const Locale locale("poor.GBK");
  ::unsetenv("LOCPATH");
  ASSERT_TRUE(locale.isSet());
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

// Records hold keys: their files are for their owner's eyes.
TEST(PosixFiles, AreTheirOwnersAlone) {
  const TemporaryFolder folder;
  const std::string path = folder.path("log");
  const mode_t mask = ::umask(0);
  EXPECT_TRUE(appendText(path.c_str(), "record"));
  ::umask(mask);
  EXPECT_EQ(std::filesystem::status(path).permissions(), std::filesystem::perms{0600});
}

// A signal may end a write before its end, or before its beginning.
TEST(PosixFiles, TakeARecordWholeOrSaySo) {
  const TemporaryFolder folder;
  const std::string path = folder.path("pipe");
  ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
  const std::string record(1 << 20, 'x');
  struct sigaction ignored {
  }, before{};
  ignored.sa_handler = [](int) {};
  ASSERT_EQ(::sigaction(SIGUSR1, &ignored, &before), 0);
  std::string received;
  std::thread reader([&, writer = ::pthread_self()] {
    const int pipe = ::open(path.c_str(), O_RDONLY);
    int waiting = 0;  // until the pipe is full, and the writer in the middle of its write
    while (waiting < ::fcntl(pipe, F_GETPIPE_SZ)) ::ioctl(pipe, FIONREAD, &waiting);
    for (int i = 0; i < 100; ++i) {
      ::pthread_kill(writer, SIGUSR1);
      std::this_thread::yield();
    }
    std::array<char, 65536> room;
    for (ssize_t got; (got = ::read(pipe, room.data(), room.size())) > 0;) {
      received.append(room.data(), static_cast<std::size_t>(got));
    }
    ::close(pipe);
  });
  EXPECT_TRUE(appendText(path.c_str(), record));
  reader.join();
  ::sigaction(SIGUSR1, &before, nullptr);
  EXPECT_EQ(received.size(), record.size());
  EXPECT_FALSE(appendText("/dev/full", "x"));
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
