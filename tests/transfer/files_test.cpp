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

  void expectNothingLeft() { EXPECT_EQ(fake().closed, fake().opened); }

  TemporaryFolder mFolder;
  ToviTraffic mTraffic{"127.0.0.1", 5005};
};

TEST_F(FileSending, IsTheNameTheChunksAndTheEnd) {
  struct {
    void (ToviTraffic::*setKey)(const char*);
    const char* name;
    const char* chunk;
  } const cases[] = {
      {nullptr, "AA FF FF 11 FF FF 61 2E 62 69 6E CC 9F 64",
       "AA FF FF 13 01 00 30 31 32 33 34 35 36 37 38 39 CC 9C FD"},
      {&ToviTraffic::setDesKey, "AA FF FF 11 8F C4 4B 15 2F 2C 54 DF CC EA 2B",
       "AA FF FF 13 C1 65 FE F0 C2 49 F5 A6 B2 25 36 D1 71 8D 39 D7 CC D5 58"},
      {&ToviTraffic::setAesKey,
       "AA FF FF 11 63 11 1E 21 4C F9 BD EE 0A 2E C9 26 ED 8D DA E7 DE CC F6 D0",
       "AA FF FF 13 BE 24 A4 C4 F3 9D FD F3 1C 09 76 B9 C2 07 E9 FC CC 51 A3"},
      {&ToviTraffic::setSM4Key,
       "AA FF FF 11 3E E7 8D 81 53 1A DD ED BD 69 7A 98 73 7A 1C B2 CC 42 31",
       "AA FF FF 13 04 51 91 30 E4 63 A1 4D 8F 51 37 0A 5E AE BD 6F CC A9 F0"},
  };
  const std::string path = mFolder.file("0123456789");
  for (const auto& c : cases) {
    ToviTraffic traffic("127.0.0.1", 5005);
    if (c.setKey != nullptr) (traffic.*c.setKey)("12345678");
    acceptFile(1);
    EXPECT_EQ(traffic.sendFile(path.c_str(), "a.bin"), 1) << c.name;
    ASSERT_EQ(fake().sent.size(), 2u);
    EXPECT_EQ(toHex(fake().sent[0]), c.name);
    EXPECT_EQ(toHex(fake().sent[1]), c.chunk);
    EXPECT_TRUE(fake().incoming.empty());
  }
  EXPECT_TRUE(fake().logged("info sendFile start"));
  expectNothingLeft();
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
    acceptFile(static_cast<int>(c.chunks.size()));
    EXPECT_EQ(mTraffic.sendFile(mFolder.file(content).c_str(), "a.bin"), 1) << c.size;
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

TEST_F(FileSending, TakesSmallerChunksWhileAKeyIsSet) {
  tovi_set_log_level(4);
  struct {
    std::size_t size;
    std::vector<std::size_t> des;  // enciphered: number, data and padding
    std::vector<std::size_t> others;
  } const cases[] = {
      {65516, {65520}, {65520}},
      {65517, {65520, 8}, {65520, 16}},
      {65518, {65520, 8}, {65520, 16}},
      {65535, {65520, 24}, {65520, 32}},
  };
  for (const auto& c : cases) {
    const std::string path = mFolder.file(pattern(c.size));
    for (const auto setKey :
         {&ToviTraffic::setDesKey, &ToviTraffic::setAesKey, &ToviTraffic::setSM4Key}) {
      ToviTraffic traffic("127.0.0.1", 5005);
      (traffic.*setKey)("12345678");
      const std::vector<std::size_t>& chunks = setKey == &ToviTraffic::setDesKey ? c.des : c.others;
      acceptFile(static_cast<int>(chunks.size()));
      EXPECT_EQ(traffic.sendFile(path.c_str(), "a.bin"), 1) << c.size;
      std::vector<std::size_t> sizes;
      for (const std::string& chunk : sentChunks()) sizes.push_back(chunk.size());
      EXPECT_EQ(sizes, chunks) << c.size;
    }
  }
}

TEST_F(FileSending, RefusesArgumentsBeforeAnythingIsSent) {
  const std::string path = mFolder.file("x");
  EXPECT_EQ(mTraffic.sendFile(nullptr, "a.bin"), -15);
  EXPECT_EQ(mTraffic.sendFile(path.c_str(), nullptr), -15);
  EXPECT_EQ(mTraffic.lastOutcome(), ToviOutcome::RefusedArgument);
  EXPECT_EQ(fake().opened, 0);
  acceptFile(1);
  EXPECT_EQ(mTraffic.sendFile(path.c_str(), ""), 1);
  EXPECT_EQ(unframe(fake().sent.at(0)), "11 FF FF");
}

TEST_F(FileSending, NeedsAConnection) {
  fake().connectFails = true;
  EXPECT_EQ(mTraffic.sendFile(mFolder.file("x").c_str(), "a.bin"), -1);
  EXPECT_EQ(mTraffic.lastOutcome(), ToviOutcome::NoConnection);
  expectNothingLeft();
}

TEST_F(FileSending, LeavesTheHostsOwnSocketOpen) {
  ToviTraffic traffic(std::uint64_t{42});
  acceptFile(1);
  EXPECT_EQ(traffic.sendFile(mFolder.file("x").c_str(), "a.bin"), 1);
  EXPECT_EQ(fake().closed, 0);
}

TEST_F(FileSending, FindsOutAboutTheFileOnceTheNameIsAcknowledged) {
  // The last one is a folder that claims to be of no size, where there is such a thing.
  for (const std::string& path : {mFolder.path("missing"), mFolder.path(), std::string(),
                                  std::string("/proc/self"), mFolder.path(std::string(300, 'x'))}) {
    acceptFile(1);
    EXPECT_EQ(mTraffic.sendFile(path.c_str(), "a.bin"), -13) << path;
    EXPECT_EQ(mTraffic.lastOutcome(), ToviOutcome::LocalFile);
    EXPECT_EQ(fake().sent.size(), 1u) << path;
    expectNothingLeft();
    mTraffic.discardKeptBytes();
  }
}

// What is read ahead of its turn is told of in its turn, and only as long as the file still has it.
TEST_F(FileSending, DoesNotPassOffAShrunkenFileAsWhole) {
  const std::string path = mFolder.file(pattern(200000));
  acceptFile(3);
  const auto progress = [&](long long sent, long long) {
    tovi_info("host: %lld", sent);
    if (sent > 100000) std::filesystem::resize_file(path, 150000);
    return true;
  };
  EXPECT_EQ(mTraffic.sendFile(path.c_str(), "a.bin", progress), -13);
  EXPECT_EQ(mTraffic.lastOutcome(), ToviOutcome::LocalFile);
  EXPECT_EQ(sentChunks().size(), 2u);
  expectNothingLeft();
  Lines told;
  for (const std::string& record : fake().log()) {
    for (const char* word : {"makeSendPacket", "recv buf end", "host", "cannot"}) {
      if (record.find(word) != std::string::npos) told.emplace_back(word);
    }
  }
  EXPECT_EQ(told, (Lines{"makeSendPacket", "recv buf end", "makeSendPacket", "recv buf end", "host",
                         "makeSendPacket", "recv buf end", "host", "cannot"}));
}

TEST_F(FileSending, TellsItsProgress) {
  Steps steps;
  const auto note = [&](long long sent, long long total) {
    steps.emplace_back(sent, total);
    return true;
  };
  acceptFile(3);
  EXPECT_EQ(mTraffic.sendFile(mFolder.file(pattern(131070)).c_str(), "a.bin", note), 1);
  EXPECT_EQ(steps, (Steps{{65535, 131070}, {131070, 131070}, {131070, 131070}}));

  // Only what was acknowledged counts.
  steps.clear();
  acceptFile(0);
  EXPECT_EQ(mTraffic.sendFile(mFolder.file("x").c_str(), "a.bin", note), -5);
  EXPECT_TRUE(steps.empty());
}

TEST_F(FileSending, TakesWhatCannotBePositioned) {
  constexpr char kUnsized[] = "/proc/self/status";
  if (!std::filesystem::exists(kUnsized)) GTEST_SKIP() << "there is no such file here";
  acceptFile(1);
  long long total = 0;
  EXPECT_EQ(
      mTraffic.sendFile(kUnsized, "a", [&](long long, long long all) { return (total = all) < 0; }),
      1);
  EXPECT_EQ(total, -1);
  ASSERT_EQ(sentChunks().size(), 1u);
  EXPECT_NE(sentChunks()[0].find("VmRSS"), std::string::npos);
}

TEST_F(FileSending, StopsWhenTheHostSaysSo) {
  const std::string path = mFolder.file(pattern(131070));
  for (const int most : {1, 2, 3}) {
    int calls = 0;
    acceptFile(3);
    EXPECT_EQ(mTraffic.sendFile(path.c_str(), "a.bin",
                                [&](long long, long long) { return ++calls < most; }),
              -16);
    EXPECT_EQ(mTraffic.lastOutcome(), ToviOutcome::Stopped);
    EXPECT_EQ(calls, most);
    EXPECT_EQ(sentChunks().size(), static_cast<std::size_t>(most));
    expectNothingLeft();
    mTraffic.discardKeptBytes();
  }
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
