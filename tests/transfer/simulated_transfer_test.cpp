// SPDX-License-Identifier: MIT
// Whole files to the simulated controller, plain and with each cipher.
#include <gtest/gtest.h>

#include <fstream>
#include <random>

#include <tovisdk/tovisdk.h>

#include "simulator/server.h"
#include "tests/transfer/temporary_folder.h"

namespace {

constexpr int kTimeoutMs = 5000;

std::string randomContent(std::size_t size) {
  std::minstd_rand random(static_cast<unsigned>(size) + 1);
  std::string content(size, '\0');
  for (char& byte : content) byte = static_cast<char>(random());
  return content;
}

struct Session {
  const char* key;
  void (ToviTraffic::*setKey)(const char*);
  std::size_t chunk;
};

class SimulatedTransfer : public testing::TestWithParam<Session> {};

TEST_P(SimulatedTransfer, FilesArriveBitForBit) {
  const Session& session = GetParam();
  tovi::sim::Options options;
  if (session.setKey != nullptr) options.key = *tovi::sim::parseKey(session.key);
  tovi::sim::Simulator simulator(options);
  ASSERT_TRUE(simulator.start()) << simulator.error();
  ToviTraffic traffic("127.0.0.1", simulator.port());
  traffic.setTimeout(kTimeoutMs);
  if (session.setKey != nullptr) (traffic.*session.setKey)("k3y-4567");

  const tovi::test::TemporaryFolder folder;
  const std::string path = folder.path("a file \xE9\x99\x90.bin");
  for (const std::size_t size : {std::size_t{0}, std::size_t{10}, session.chunk - 1, session.chunk,
                                 session.chunk + 1, 2 * session.chunk, std::size_t{3'000'000}}) {
    const std::string content = randomContent(size);
    std::ofstream(path, std::ios::binary) << content;
    EXPECT_EQ(traffic.sendFile(path.c_str(), "b.bin"), 1) << session.key << " " << size;
    EXPECT_EQ(simulator.controller().files().read("b.bin"), tovi::sim::bytesOf(content))
        << session.key << " " << size;
  }
}

TEST(SimulatedTransferNames, MayHave255Bytes) {
  tovi::sim::Simulator simulator{tovi::sim::Options{}};
  ASSERT_TRUE(simulator.start()) << simulator.error();
  ToviTraffic traffic("127.0.0.1", simulator.port());
  traffic.setTimeout(kTimeoutMs);
  const tovi::test::TemporaryFolder folder;
  const std::string longest = std::string(251, 'x') + ".bin";
  const std::string path = folder.file("content", longest);
  EXPECT_EQ(traffic.sendFile(path.c_str(), longest.c_str()), 1);
  EXPECT_EQ(traffic.sendFile(path.c_str(), (longest + "x").c_str()), -4);
  EXPECT_EQ(simulator.controller().files().read(longest), tovi::sim::bytesOf("content"));
}

// Without it, the tests are named after the bytes of the record, which change with every start.
void PrintTo(const Session& session, std::ostream* stream) { *stream << session.key; }

INSTANTIATE_TEST_SUITE_P(Ciphers, SimulatedTransfer,
                         testing::Values(Session{"plain", nullptr, 65535},
                                         Session{"des:k3y-4567", &ToviTraffic::setDesKey, 65517},
                                         Session{"aes:k3y-4567", &ToviTraffic::setAesKey, 65517},
                                         Session{"sm4:k3y-4567", &ToviTraffic::setSM4Key, 65517}));

}  // namespace
