// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>
#include <string>

namespace tovi::test {

// A folder of one test's own, removed with it.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::random_device random;
    mPath = std::filesystem::temp_directory_path() /
            ("tovi_test_" + std::to_string(random()) + std::to_string(random()));
    if (!std::filesystem::create_directory(mPath)) throw std::runtime_error("no folder");
  }
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(mPath, ignored);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  std::string path(const std::string& name = "") const { return (mPath / name).string(); }

  // The path of a file with that content.
  std::string file(const std::string& content, const std::string& name = "a.bin") const {
    std::ofstream(path(name), std::ios::binary) << content;
    return path(name);
  }

  std::string content(const std::string& name) const {
    std::ifstream stream(path(name), std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(stream), {});
  }

 private:
  std::filesystem::path mPath;
};

}  // namespace tovi::test
