// SPDX-License-Identifier: MIT
// Many threads, one controller, and the log on: no race, every text right, every record whole.
#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

#include <tovisdk/flat.h>
#include <tovisdk/log.h>

#include "simulator/server.h"
#include "tests/transfer/temporary_folder.h"

namespace {

constexpr int kThreads = 64;
constexpr int kCallsEach = 15;

std::string taken(char* text) {
  const std::string copy = text == nullptr ? "null" : text;
  deleteArry(&text);
  return copy;
}

// Every record begins with its time stamp, and an empty line follows it.
int brokenRecords(const std::filesystem::path& folder) {
  int broken = 0;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    std::ifstream file(entry.path());
    std::string record, empty;
    while (std::getline(file, record)) {
      const bool stamped =
          record.size() > 20 && record[4] == '-' && record[13] == ':' && record[19] == ' ';
      if (!stamped || !std::getline(file, empty) || !empty.empty()) ++broken;
    }
  }
  return broken;
}

TEST(FlatThreads, GetTheirOwnAnswersAndLogWholeRecords) {
  const tovi::test::TemporaryFolder folder;
  tovi_set_log_folder(folder.path().c_str());
  tovi_set_log_level(0);
  tovi::sim::Simulator simulator({});
  ASSERT_TRUE(simulator.start());
  std::atomic<int> wrong{0};
  const auto host = [&] {
    for (int call = 0; call < kCallsEach; ++call) {
      if (taken(getSn("127.0.0.1", simulator.port())) != "SIM0000000001interfaceEnd") ++wrong;
      if (std::string(setBrightness("127.0.0.1", simulator.port(), 7)) != "success") ++wrong;
      // Refused before anything is sent, which writes records at full speed.
      setDeviceName("127.0.0.1", 0, nullptr);
    }
  };
  std::vector<std::thread> hosts;
  for (int i = 0; i < kThreads; ++i) hosts.emplace_back(host);
  for (std::thread& thread : hosts) thread.join();
  tovi_set_log_level(4);
  tovi_set_log_folder(nullptr);
  EXPECT_EQ(wrong, 0);
  EXPECT_EQ(brokenRecords(folder.path()), 0);
  EXPECT_FALSE(std::filesystem::is_empty(folder.path()));
}

}  // namespace
