// SPDX-License-Identifier: MIT
// Whole files over real sockets to the simulated controller, plain and with each cipher.
#include <gtest/gtest.h>

#include <random>

#include <tovisdk/tovisdk.h>

#include "simulator/server.h"
#include "tests/support/heap_probe.h"
#include "tests/transfer/temporary_folder.h"

namespace {

using tovi::test::heapBlocksOfThisThread;

std::string randomContent(std::size_t size) {
  std::minstd_rand random(static_cast<unsigned>(size) + 1);
  std::string content(size, '\0');
  for (char& byte : content) byte = static_cast<char>(random());
  return content;
}

TEST(SimulatedTransfer, FilesArriveBitForBitAndLeaveNothingBehind) {
  struct {
    const char* key;
    void (ToviTraffic::*setKey)(const char*);
    std::size_t chunk;
  } const cases[] = {{"none", nullptr, 65535},
                     {"des:k3y-4567", &ToviTraffic::setDesKey, 65517},
                     {"aes:k3y-4567", &ToviTraffic::setAesKey, 65517},
                     {"sm4:k3y-4567", &ToviTraffic::setSM4Key, 65517}};
  const tovi::test::TemporaryFolder folder;
  for (const auto& c : cases) {
    tovi::sim::Options options;
    options.key = tovi::sim::parseKey(c.key).value();
    tovi::sim::Simulator simulator(options);
    ASSERT_TRUE(simulator.start()) << simulator.error();
    ToviTraffic traffic("127.0.0.1", simulator.port());
    traffic.setTimeout(5000);
    if (c.setKey != nullptr) (traffic.*c.setKey)("k3y-4567");
    for (const std::size_t size : {std::size_t{0}, 2 * c.chunk, std::size_t{3'000'000}}) {
      const std::string content = randomContent(size);
      const std::string path = folder.file(content, "a file 限.bin");
      const long blocks = heapBlocksOfThisThread();
      EXPECT_EQ(traffic.sendFile(path.c_str(), "b.bin"), 1) << c.key << " " << size;
      // What is made once is made with the first.
      if (size > 0) {
        EXPECT_EQ(heapBlocksOfThisThread(), blocks) << c.key << " " << size;
      }
      EXPECT_EQ(simulator.controller().files().read("b.bin"), tovi::sim::bytesOf(content))
          << c.key << " " << size;
    }
  }
}

}  // namespace
