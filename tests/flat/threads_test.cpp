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

class FlatThreads : public testing::Test {
 protected:
  FlatThreads() {
    tovi_set_log_folder(mFolder.path().c_str());
    tovi_set_log_level(0);
  }
  ~FlatThreads() override {
    tovi_set_log_level(4);
    tovi_set_log_folder(nullptr);
  }

  template <class Host>
  static void runThreads(const Host& host) {
    std::vector<std::thread> hosts;
    for (int i = 0; i < kThreads; ++i) hosts.emplace_back(host);
    for (std::thread& thread : hosts) thread.join();
  }

  tovi::test::TemporaryFolder mFolder;
};

TEST_F(FlatThreads, GetTheirOwnAnswers) {
  tovi::sim::Simulator simulator({});
  ASSERT_TRUE(simulator.start());
  const std::string serial = taken(getSn("127.0.0.1", simulator.port()));
  std::atomic<int> wrong{0};
  runThreads([&] {
    for (int call = 0; call < kCallsEach; ++call) {
      if (taken(getSn("127.0.0.1", simulator.port())) != serial) ++wrong;
      if (std::string(setBrightness("127.0.0.1", simulator.port(), 7)) != "success") ++wrong;
    }
  });
  EXPECT_EQ(wrong, 0);
}

TEST_F(FlatThreads, LogWholeRecords) {
  // Refused before anything is sent, which writes records at full speed.
  runThreads([] {
    for (int call = 0; call < kCallsEach; ++call) setDeviceName("127.0.0.1", 0, nullptr);
  });
  EXPECT_EQ(brokenRecords(mFolder.path()), 0);
  EXPECT_FALSE(std::filesystem::is_empty(mFolder.path()));
}

}  // namespace
