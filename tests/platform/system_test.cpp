// SPDX-License-Identifier: MIT
#include "platform/system.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "loopback.h"
#include "platform/files.h"
#include "platform/text.h"
#include "tests/transfer/temporary_folder.h"

namespace tovi::platform::test {
namespace {

class Files : public testing::Test {
 protected:
  std::string in(const std::string& name) const { return mFolder.path(name); }

 private:
  const tovi::test::TemporaryFolder mFolder;
};

std::vector<std::string> linesOf(const std::string& path) {
  std::ifstream file(path);
  std::vector<std::string> lines;
  for (std::string line; std::getline(file, line);) lines.push_back(line);
  return lines;
}

TEST_F(Files, MakeFoldersWhereTheyCan) {
  EXPECT_TRUE(makeFolder((in("new") + kPathSeparator).c_str())) << "as the log folder is written";
  EXPECT_TRUE(makeFolder(in("new").c_str())) << "it exists";
  EXPECT_TRUE(std::filesystem::is_directory(in("new")));
  EXPECT_FALSE(makeFolder((in("missing") + kPathSeparator + "inner").c_str()));
  ASSERT_TRUE(appendText(in("file").c_str(), "x"));
  EXPECT_FALSE(makeFolder(in("file").c_str())) << "a file of that name";
  EXPECT_FALSE(makeFolder(""));
}

TEST_F(Files, AppendWithTheSystemsLineEnds) {
  EXPECT_TRUE(appendText(in("log").c_str(), ""));
  EXPECT_EQ(std::filesystem::file_size(in("log")), 0U);
  EXPECT_TRUE(appendText(in("log").c_str(), "one\n\n"));
  EXPECT_TRUE(appendText(in("log").c_str(), "two\n\n"));
  EXPECT_EQ(linesOf(in("log")), (std::vector<std::string>{"one", "", "two", ""}));

  std::ofstream(in("written")) << "one\n\ntwo\n\n";
  EXPECT_EQ(std::filesystem::file_size(in("log")), std::filesystem::file_size(in("written")));
}

TEST_F(Files, RefuseWhatCannotBeWritten) {
  ASSERT_TRUE(appendText(in("file").c_str(), "x"));
  for (const std::string& path : {in("missing") + kPathSeparator + "log", in(""),
                                  in("file") + kPathSeparator + "log", std::string()}) {
    EXPECT_FALSE(appendText(path.c_str(), "x")) << path;
  }
}

TEST_F(Files, AreMeasuredAndReplaceOneAnother) {
  EXPECT_EQ(fileSize(in("log").c_str()), 0);
  ASSERT_TRUE(appendText(in("log").c_str(), "record"));
  ASSERT_TRUE(appendText(in("aside").c_str(), "before"));
  EXPECT_EQ(fileSize(in("log").c_str()), 6);
  EXPECT_TRUE(renameFile(in("log").c_str(), in("aside").c_str()));
  EXPECT_EQ(linesOf(in("aside")), std::vector<std::string>{"record"});
  EXPECT_FALSE(renameFile(in("log").c_str(), in("aside").c_str()));
  EXPECT_TRUE(endsWithSeparator((in("") + kPathSeparator).c_str()));
  EXPECT_FALSE(endsWithSeparator(in("log").c_str()));
  EXPECT_FALSE(endsWithSeparator(""));
}

TEST(System, PausesAtLeastThatLong) {
  const Stopwatch watch;
  pauseFor(30);
  EXPECT_GE(watch.elapsedMs(), 30);
  pauseFor(0);
  pauseFor(-1000);
  EXPECT_LT(watch.elapsedMs(), kLongMs);
}

TEST(System, TellsLocalTimeThatLeadsBack) {
  for (const std::time_t time : {now(), std::time_t{1704441600}, std::time_t{1720000000}}) {
    std::tm local = localTime(time);
    EXPECT_EQ(std::mktime(&local), time);
  }
  EXPECT_GT(now(), 1704441600);
}

TEST(System, KnowsTheFolderOfTheProgram) {
  const std::string folder = executableFolder();
  ASSERT_FALSE(folder.empty());
  EXPECT_EQ(folder.back(), kPathSeparator);
  EXPECT_TRUE(std::filesystem::is_directory(folder));
}

TEST(Text, LeadsBackWhereItConverts) {
  const std::string withZero("a\0b", 3);
  for (const std::string& text : {std::string(), std::string("plain ~"), withZero}) {
    EXPECT_EQ(utf8ToLocal(text), text);
    EXPECT_EQ(localToUtf8(text), text);
  }
  // Whether a code page holds them differs; what it holds must not be changed.
  for (const std::string text : {"\xC3\xA9", "\xE4\xBA\xAE", "\xF0\x9F\x92\xA1"}) {
    const auto local = utf8ToLocal(text);
    if (local) {
      EXPECT_EQ(localToUtf8(*local), text);
    }
  }
}

TEST(Text, RefusesIllFormedUtf8) {
  const bool localIsUtf8 = utf8ToLocal("\xF0\x9F\x92\xA1") == "\xF0\x9F\x92\xA1";
  for (const std::string text : {"\x80", "a\xC3", "\xC3(", "\xC0\xAF", "\xC1\xBF", "\xE0\x9F\xBF",
                                 "\xED\xA0\x80", "\xE4\xBA", "\xE4\xBA(", "\xF0\x8F\xBF\xBF",
                                 "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xF0\x9F\x92", "\xFF"}) {
    SCOPED_TRACE(testing::PrintToString(text));
    EXPECT_EQ(utf8ToLocal(text), std::nullopt);
    if (localIsUtf8) {
      EXPECT_EQ(localToUtf8(text), std::nullopt);
    }
  }
  // The first and the last of each length.
  for (const std::string text :
       {"\x7F", "\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xED\x9F\xBF", "\xEE\x80\x80",
        "\xEF\xBF\xBF", "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF"}) {
    if (localIsUtf8) {
      EXPECT_EQ(localToUtf8(text), text) << testing::PrintToString(text);
    }
  }
}

}  // namespace
}  // namespace tovi::platform::test
