// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string_view>

#include <tovisdk/tovisdk.h>

#include "tests/transfer/temporary_folder.h"

namespace {

using tovi::test::TemporaryFolder;

class LocalFiles : public testing::Test {
 protected:
  std::string path(const std::string& name) const { return mFolder.path(name); }

  TemporaryFolder mFolder;
};

TEST_F(LocalFiles, AreMadeAndEmptied) {
  const std::string file = mFolder.file("what was there before", "a");
  EXPECT_TRUE(createEmptyFile(file.c_str()));
  EXPECT_EQ(std::filesystem::file_size(file), 0u);
  EXPECT_TRUE(createEmptyFile(path("b").c_str()));
  EXPECT_TRUE(std::filesystem::exists(path("b")));
  EXPECT_FALSE(createEmptyFile(path("missing/b").c_str()));
  EXPECT_FALSE(createEmptyFile(mFolder.path().c_str()));
  EXPECT_FALSE(createEmptyFile(path(std::string(300, 'x')).c_str()));  // no system has such names
  EXPECT_FALSE(createEmptyFile(""));
  EXPECT_FALSE(createEmptyFile(nullptr));
}

TEST_F(LocalFiles, GrowByExactlyTheBytesAppended) {
  const std::string file = path("a");
  const std::string bytes("\r\n\0\x1A\xFF", 5);
  writeFileAppend(file.c_str(), bytes.data(), 5);
  writeFileAppend(file.c_str(), bytes.data(), 2);
  writeFileAppend(file.c_str(), bytes.data(), -1);
  writeFileAppend(file.c_str(), nullptr, 2);
  writeFileAppend(nullptr, bytes.data(), 5);
  writeFileAppend(path("missing/b").c_str(), bytes.data(), 5);
  EXPECT_EQ(mFolder.content("a"), bytes + "\r\n");
  writeFileAppend(path("empty").c_str(), nullptr, 0);
  EXPECT_TRUE(std::filesystem::exists(path("empty")));
}

TEST_F(LocalFiles, AreReadWholeAndEndWithAZero) {
  for (const std::string& content :
       {std::string(), std::string("\r\n\0\x1A\xFF", 5), std::string(100000, 'x')}) {
    char* read = readFile(mFolder.file(content).c_str());
    ASSERT_NE(read, nullptr) << content.size();
    EXPECT_TRUE(std::string_view(read, content.size() + 1) ==
                std::string_view(content.c_str(), content.size() + 1))
        << content.size();
    deleteArry(&read);
  }
  EXPECT_EQ(readFile(path("missing").c_str()), nullptr);
  EXPECT_EQ(readFile(mFolder.path().c_str()), nullptr);
  EXPECT_EQ(readFile(""), nullptr);
  EXPECT_EQ(readFile(path(std::string(300, 'x')).c_str()), nullptr);
  EXPECT_EQ(readFile("/proc/self"), nullptr);  // a folder that claims to be of no size, or nothing
  EXPECT_EQ(readFile(nullptr), nullptr);
}

// As a pipe is, which would want a writer here.
TEST_F(LocalFiles, AreReadThoughTheyCannotBePositioned) {
  constexpr char kUnsized[] = "/proc/self/status";
  if (!std::filesystem::exists(kUnsized)) GTEST_SKIP() << "there is no such file here";
  char* content = readFile(kUnsized);
  ASSERT_NE(content, nullptr);
  EXPECT_NE(std::string(content).find("VmRSS"), std::string::npos);
  deleteArry(&content);
}

}  // namespace
