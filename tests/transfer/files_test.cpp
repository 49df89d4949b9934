// SPDX-License-Identifier: MIT
#include "tests/support/fake_platform_test.h"
#include "tests/support/hex.h"
#include "tests/support/process_probe.h"
#include "tests/support/wire.h"
#include "tests/transfer/temporary_folder.h"

#include <stdexcept>
#include <utility>

#include <tovisdk/tovisdk.h>

namespace {

using tovi::test::FakePlatformTest;
using tovi::test::frame;
using tovi::test::hex;
using tovi::test::openDescriptors;
using tovi::test::TemporaryFolder;
using tovi::test::toHex;
using tovi::test::unframe;
using Steps = std::vector<std::pair<long long, long long>>;
using Lines = std::vector<std::string>;

// No two places of a few hundred thousand bytes look alike, and every byte value occurs.
std::string pattern(std::size_t size) {
  std::string content(size, '\0');
  for (std::size_t i = 0; i < size; ++i) content[i] = static_cast<char>(i ^ i >> 8 ^ i >> 16);
  return content;
}

class FileSending : public FakePlatformTest {
 protected:
  // A controller that accepts everything, with answers of nothing but their code: they are the same
  // under every key.
  void acceptFile(int chunks) {
    fake().sent.clear();
    fake().incoming.clear();
    fake().arrive(frame("12"));
    for (int i = 0; i < chunks; ++i) fake().arrive(frame("14"));
    fake().arrive(frame("F9"));
  }

  // What each chunk carried, its number first.
  Lines sentChunks() {
    Lines chunks;
    for (const std::string& sent : fake().sent) {
      const std::string content = hex(unframe(sent));
      if (content.substr(0, 1) == "\x13") chunks.push_back(content.substr(1));
    }
    return chunks;
  }

  // Sends a file to a controller that accepts so many chunks of it, and sees everything given back.
  int send(ToviTraffic& traffic, const std::string& path, int chunks,
           const ToviTraffic::Progress& progress = {}) {
    const std::size_t descriptors = openDescriptors();
    traffic.discardKeptBytes();
    acceptFile(chunks);
    const int result = traffic.sendFile(path.c_str(), "a.bin", progress);
    EXPECT_EQ(openDescriptors(), descriptors);
    EXPECT_EQ(fake().closed, fake().opened);
    return result;
  }

  TemporaryFolder mFolder;
  ToviTraffic mTraffic{"127.0.0.1", 5005};
};

TEST_F(FileSending, IsTheNameTheChunksAndTheEnd) {
  EXPECT_EQ(send(mTraffic, mFolder.file("0123456789"), 1), 1);
  ASSERT_EQ(fake().sent.size(), 2u);
  EXPECT_EQ(toHex(fake().sent[0]), "AA FF FF 11 FF FF 61 2E 62 69 6E CC 9F 64");
  EXPECT_EQ(toHex(fake().sent[1]), "AA FF FF 13 01 00 30 31 32 33 34 35 36 37 38 39 CC 9C FD");
  EXPECT_TRUE(fake().incoming.empty());
  EXPECT_TRUE(fake().logged("info sendFile start"));
}

TEST_F(FileSending, CutsFilesIntoNumberedChunks) {
  tovi_set_log_level(4);
  struct {
    std::size_t size;
    std::vector<std::size_t> chunks;
  } const cases[] = {
      {0, {0}},
      {1, {1}},
      {65534, {65534}},
      {65535, {65535, 0}},
      {65536, {65535, 1}},
      {131070, {65535, 65535, 0}},
      {300000, {65535, 65535, 65535, 65535, 37860}},
  };
  for (const auto& c : cases) {
    const std::string content = pattern(c.size);
    EXPECT_EQ(send(mTraffic, mFolder.file(content), static_cast<int>(c.chunks.size())), 1);
    EXPECT_TRUE(fake().incoming.empty()) << c.size;
    std::vector<std::size_t> sizes;
    std::string received;
    for (const std::string& chunk : sentChunks()) {
      sizes.push_back(chunk.size() - 2);
      received += chunk.substr(2);
      EXPECT_EQ(chunk.substr(0, 2), std::string({static_cast<char>(sizes.size()), '\0'}));
    }
    EXPECT_EQ(sizes, c.chunks) << c.size;
    EXPECT_TRUE(received == content) << c.size;
  }
}

TEST_F(FileSending, EndsBeforeAnythingIsSentWithoutArgumentsOrAConnection) {
  const std::string path = mFolder.file("x");
  EXPECT_EQ(mTraffic.sendFile(nullptr, "a.bin"), -15);
  EXPECT_EQ(mTraffic.lastOutcome(), ToviOutcome::RefusedArgument);
  EXPECT_EQ(send(mTraffic, path, 1), 1);
  EXPECT_EQ(mTraffic.lastOutcome(), ToviOutcome::Done);
  EXPECT_EQ(mTraffic.sendFile(path.c_str(), nullptr), -15);
  EXPECT_EQ(mTraffic.lastOutcome(), ToviOutcome::RefusedArgument);
  EXPECT_EQ(fake().opened, 1);
  fake().connectFails = true;
  EXPECT_EQ(send(mTraffic, path, 1), -1);
  EXPECT_EQ(mTraffic.lastOutcome(), ToviOutcome::NoConnection);
  EXPECT_TRUE(fake().logged("error sendFile socket error"));
  EXPECT_TRUE(fake().sent.empty());
}

TEST_F(FileSending, LeavesTheHostsOwnSocketOpen) {
  ToviTraffic traffic(std::uint64_t{42});
  acceptFile(1);
  EXPECT_EQ(traffic.sendFile(mFolder.file("x").c_str(), ""), 1);
  EXPECT_EQ(unframe(fake().sent.at(0)), "11 FF FF");
  EXPECT_EQ(fake().closed, 0);
}

TEST_F(FileSending, FindsOutAboutTheFileOnceTheNameIsAcknowledged) {
  // The last one is a folder that claims to be of no size, where there is such a thing.
  for (const std::string& path : {mFolder.path("missing"), mFolder.path(), std::string(),
                                  std::string("/proc/self"), mFolder.path(std::string(300, 'x'))}) {
    EXPECT_EQ(send(mTraffic, path, 1), -13) << path;
    EXPECT_EQ(mTraffic.lastOutcome(), ToviOutcome::LocalFile);
    EXPECT_EQ(fake().sent.size(), 1u) << path;
    EXPECT_TRUE(fake().logged("error ToviTraffic::sendFileContent cannot read " + path));
  }
}

// What is read ahead of its turn is told of in its turn, and only as long as the file still has it.
TEST_F(FileSending, TellsOfWhatIsReadAheadInItsTurn) {
  const std::string path = mFolder.file(pattern(200000));
  const auto progress = [&](long long sent, long long) {
    tovi_info("host: %lld", sent);
    if (sent > 100000) std::filesystem::resize_file(path, 150000);
    return true;
  };
  EXPECT_EQ(send(mTraffic, path, 3, progress), -13);
  EXPECT_EQ(mTraffic.lastOutcome(), ToviOutcome::LocalFile);
  EXPECT_EQ(sentChunks().size(), 2u);
  Lines told;
  for (const std::string& record : fake().log()) {
    for (const char* word : {"makeSendPacket", "recv buf end", "host", "cannot"}) {
      if (record.find(word) != std::string::npos) told.emplace_back(word);
    }
  }
  EXPECT_EQ(told, (Lines{"makeSendPacket", "recv buf end", "makeSendPacket", "recv buf end", "host",
                         "makeSendPacket", "recv buf end", "host", "cannot"}));
}

// A chunk that is not full would tell the controller that the file ends there.
TEST_F(FileSending, DoesNotPassOffAShrunkenFileAsWhole) {
  const std::string path = mFolder.file(pattern(300000));
  EXPECT_EQ(send(mTraffic, path, 5,
                 [&](long long, long long) {
                   std::filesystem::resize_file(path, 170000);
                   return true;
                 }),
            -13);
  EXPECT_EQ(mTraffic.lastOutcome(), ToviOutcome::LocalFile);
  for (const std::string& chunk : sentChunks()) EXPECT_EQ(chunk.size(), 65537u);
}

TEST_F(FileSending, TellsItsProgressUntilTheHostStopsIt) {
  const std::string path = mFolder.file(pattern(131070));
  const Steps whole = {{65535, 131070}, {131070, 131070}, {131070, 131070}};
  for (const std::ptrdiff_t most : {1, 2, 3, 4}) {
    Steps steps;
    const bool stopped = most <= 3;
    EXPECT_EQ(send(mTraffic, path, 3,
                   [&](long long sent, long long total) {
                     steps.emplace_back(sent, total);
                     return static_cast<std::ptrdiff_t>(steps.size()) < most;
                   }),
              stopped ? -16 : 1);
    EXPECT_EQ(mTraffic.lastOutcome(), stopped ? ToviOutcome::Stopped : ToviOutcome::Done);
    EXPECT_EQ(steps, Steps(whole.begin(), stopped ? whole.begin() + most : whole.end()));
    EXPECT_EQ(sentChunks().size(), steps.size());
  }
  // Only what was acknowledged counts.
  EXPECT_EQ(
      send(mTraffic, path, 0, [](long long, long long) -> bool { throw std::logic_error("told"); }),
      -5);
}

TEST_F(FileSending, TakesWhatCannotBePositioned) {
  constexpr char kUnsized[] = "/proc/self/status";
  if (!std::filesystem::exists(kUnsized)) GTEST_SKIP() << "there is no such file here";
  long long total = 0;
  EXPECT_EQ(
      send(mTraffic, kUnsized, 1, [&](long long, long long all) { return (total = all) < 0; }), 1);
  EXPECT_EQ(total, -1);
  ASSERT_EQ(sentChunks().size(), 1u);
  EXPECT_NE(sentChunks()[0].find("VmRSS"), std::string::npos);
}

TEST_F(FileSending, GivesEverythingBackWhenTheHostThrows) {
  const std::string path = mFolder.file("x");
  const std::size_t descriptors = openDescriptors();
  acceptFile(1);
  EXPECT_THROW(
      mTraffic.sendFile(path.c_str(), "a.bin",
                        [](long long, long long) -> bool { throw std::runtime_error("enough"); }),
      std::runtime_error);
  EXPECT_EQ(openDescriptors(), descriptors);
  EXPECT_EQ(fake().closed, 1);
}

}  // namespace
