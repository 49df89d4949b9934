// SPDX-License-Identifier: MIT
// A line is found from the layout alone: what belongs to one theme stands in files of one name.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <string>

#include "wire/command_table.h"

namespace tovi::test {
namespace {

// The stems of the files of a folder in which a pattern names methods in its first group.
std::map<std::string, std::string> stemsOf(const std::string& folder, const std::string& pattern) {
  const std::regex naming(pattern);
  std::map<std::string, std::string> stems;
  for (const auto& file : std::filesystem::directory_iterator(TOVI_SOURCE_FOLDER "/" + folder)) {
    if (file.path().extension() != ".cpp") continue;
    std::ifstream stream(file.path());
    const std::string text(std::istreambuf_iterator<char>(stream), {});
    for (std::sregex_iterator i(text.begin(), text.end(), naming), end; i != end; ++i) {
      stems.emplace((*i)[1], file.path().stem().string());
    }
  }
  return stems;
}

TEST(Rooms, AMethodHasOneNameEverywhere) {
  std::map<std::string, std::string> library = stemsOf("src/device", R"re(ToviTraffic::(\w+)\()re");
  library.merge(stemsOf("src/transfer", R"re(ToviTraffic::(\w+)\()re"));
  const auto simulator = stemsOf("simulator", R"re(\{command\("(\w+)"\))re");
  const auto tool = stemsOf("cli", R"re(commands\.add\(\s*\{?"(\w+)\")re");
  ASSERT_GT(tool.size(), 110u);
  for (const wire::Command& row : wire::kCommands) {
    const std::string method(row.method);
    const std::string& stem = library[method];
    EXPECT_FALSE(stem.empty()) << method;
    // The controller's own last word on a file answers no request.
    if (row.request != wire::kNoRequest) {
      EXPECT_EQ(simulator.count(method) == 1 ? simulator.at(method) : "no row", stem) << method;
    }
    if (!wire::isStep(row)) {
      EXPECT_EQ(tool.count(method) == 1 ? tool.at(method) : "no entry", stem) << method;
    }
  }
}

}  // namespace
}  // namespace tovi::test
