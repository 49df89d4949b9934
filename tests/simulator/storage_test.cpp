// SPDX-License-Identifier: MIT
#include "simulator/storage.h"

#include <gtest/gtest.h>

#include "tests/transfer/temporary_folder.h"

namespace tovi::sim {
namespace {

using test::TemporaryFolder;

std::size_t filesIn(const std::filesystem::path& folder) {
  const std::filesystem::directory_iterator entries(folder);
  return static_cast<std::size_t>(std::distance(begin(entries), end(entries)));
}

void put(Storage& storage, const std::string& name, std::string_view content) {
  const auto file = storage.begin(name);
  ASSERT_NE(file, nullptr) << name;
  ASSERT_TRUE(file->append(bytesOf(content)));
  ASSERT_TRUE(file->keep());
}

class StorageTest : public testing::TestWithParam<bool> {
 protected:
  Storage::Options options(std::uint64_t capacity = 100) const {
    return {GetParam() ? mFolder.path("state") : "", capacity};
  }

  const TemporaryFolder mFolder;
};

INSTANTIATE_TEST_SUITE_P(InMemoryAndInAFolder, StorageTest, testing::Bool());

TEST_P(StorageTest, KeepsFilesWhole) {
  Storage storage(options());
  put(storage, "b", "old");
  put(storage, "限速", std::string("\0\xFF", 2));
  const auto file = storage.begin("b");
  file->append(bytesOf("ne"));
  file->append(bytesOf("wer"));
  const auto another = storage.begin("b");  // whichever is the last counts
  EXPECT_EQ(textOf(storage.read("b").value()), "old");
  EXPECT_EQ(storage.used(), 10U);
  EXPECT_TRUE(file->keep());
  EXPECT_EQ(textOf(storage.read("b").value()), "newer");
  EXPECT_EQ(textOf(storage.read("b", 3).value()), "new");
  EXPECT_EQ(storage.used(), 7U);
  EXPECT_TRUE(another->append(bytesOf("x")) && another->keep());
  EXPECT_EQ(textOf(storage.read("b").value()), "x");
  EXPECT_EQ(storage.used(), 3U);
  EXPECT_EQ(storage.names(), (std::vector<std::string>{"b", "限速"}));
  EXPECT_TRUE(storage.remove("b"));
  EXPECT_FALSE(storage.remove("b"));
  EXPECT_FALSE(storage.read("b"));
  EXPECT_EQ(storage.used(), 2U);
}

TEST_P(StorageTest, CountsUnfinishedFilesToo) {
  Storage storage(options(10));
  auto first = storage.begin("a");
  const auto second = storage.begin("b");
  EXPECT_TRUE(first->append(bytesOf("123456")));
  EXPECT_FALSE(second->append(bytesOf("12345")));
  EXPECT_TRUE(second->append(bytesOf("1234")));
  EXPECT_EQ(storage.begin("c"), nullptr);  // full
  first.reset();
  EXPECT_EQ(storage.used(), 4U);
  EXPECT_TRUE(second->keep());
  EXPECT_EQ(textOf(storage.read("b").value()), "1234");
}

TEST(StorageFolder, IsTakenUpAgainWithoutWhatWasNotFinished) {
  const TemporaryFolder folder;
  const std::filesystem::path path = folder.path("new/state");
  {
    Storage storage({path.string()});
    ASSERT_EQ(storage.error(), "");
    put(storage, "限速.mp4", "whole");
    const auto unfinished = storage.begin("half");
    unfinished->append(Bytes(100'000, 'x'));
    EXPECT_EQ(filesIn(path / "files"), 1U);
    EXPECT_EQ(filesIn(path / "unfinished"), 1U);
    // As after a crash: what has reached the disk stays there.
    std::filesystem::copy_file(path / "unfinished" / "2", path / "unfinished" / "7");
  }
  EXPECT_EQ(filesIn(path / "unfinished"), 1U);
  std::ofstream(path / "unfinished" / "mine.txt") << "not from here";

  Storage again({path.string()});
  EXPECT_EQ(again.names(), std::vector<std::string>{"限速.mp4"});
  EXPECT_EQ(textOf(again.read("限速.mp4").value()), "whole");
  EXPECT_EQ(again.used(), 5U);
  EXPECT_EQ(filesIn(path / "unfinished"), 1U);
  EXPECT_TRUE(std::filesystem::exists(path / "unfinished" / "mine.txt"));
}

TEST(StorageFolder, IsAnErrorOrHasNoRoomWhereItCannotBe) {
  const TemporaryFolder folder;
  const Storage nowhere({folder.file("a file")});
  EXPECT_EQ(nowhere.error().rfind("cannot use the folder " + folder.path("a.bin"), 0), 0U);

  Storage storage({folder.path("state")});
  const auto file = storage.begin("a");
  file->append(bytesOf("x"));
  std::filesystem::create_directories(folder.path("state") + "/files/a/occupied");
  EXPECT_FALSE(file->keep());
  std::filesystem::remove_all(folder.path("state"));
  EXPECT_EQ(storage.begin("b"), nullptr);
  EXPECT_TRUE(storage.names().empty());
}

}  // namespace
}  // namespace tovi::sim
