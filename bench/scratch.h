// SPDX-License-Identifier: MIT
// The log of a measurement, and files that are gone afterwards.
#pragma once

#include <fcntl.h>
#include <tovisdk/log_control.h>
#include <unistd.h>

#include <cstdio>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>

namespace tovi::bench {

// Nothing is logged or printed.
class Silence {
 public:
  Silence() {
    tovi_set_log_level(4);
    tovi_set_console(0);
  }
  ~Silence() { tovi_set_log_level(0); }
  Silence(const Silence&) = delete;
  Silence& operator=(const Silence&) = delete;
};

class Folder {
 public:
  Folder() {
    std::string name = (std::filesystem::temp_directory_path() / "tovi_bench_XXXXXX").string();
    if (::mkdtemp(name.data()) == nullptr) throw std::runtime_error(name);
    mPath = name;
  }
  ~Folder() { std::filesystem::remove_all(mPath); }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;

  std::string file(const char* name) const { return mPath / name; }

 private:
  std::filesystem::path mPath;
};

// Everything is logged, as the library is shipped, to a folder of its own.
class Log {
 public:
  Log() {
    tovi_set_console(0);
    tovi_set_log_folder(mFolder.file("log").c_str());
  }
  ~Log() { tovi_set_log_folder(nullptr); }
  Log(const Log&) = delete;
  Log& operator=(const Log&) = delete;

 private:
  Folder mFolder;
};

// A log as lean as one can be that opens and closes its file for each record.
class LeanLog {
 public:
  void write(const char* text) const {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    ::localtime_r(&now, &local);
    char record[256];
    const std::size_t stamp = std::strftime(record, sizeof record, "%Y-%m-%d %H:%M:%S ", &local);
    const int more = std::snprintf(record + stamp, sizeof record - stamp, "info %s\n\n", text);
    const int file = ::open(mPath.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0600);
    if (::write(file, record, stamp + static_cast<std::size_t>(more)) < 0) std::perror("write");
    ::close(file);
  }

 private:
  Folder mFolder;
  std::string mPath = mFolder.file("log");
};

}  // namespace tovi::bench
