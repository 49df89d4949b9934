#include "foundation/log.h"

#include <tovisdk/log.h>

#include <array>
#include <atomic>
#include <cstdio>
#include <cstring>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>

#include "platform/files.h"
#include "platform/system.h"

namespace tovi::log {
namespace {

constexpr std::size_t kMessageSize = 65535;  // a message's room, its closing zero included
constexpr std::size_t kShortMessageSize = 1024;
constexpr std::size_t kMaxFolder = 1000;

std::atomic<int> gThreshold{0};
std::atomic<bool> gRedact{false};

// The folder that the host chose (empty: the default), and how often it changed.
std::mutex gFolderMutex;
std::array<char, kMaxFolder + 2> gFolder{};
std::atomic<unsigned> gFolderChanges{0};

// What records of one second share. Plain arrays, one per thread: a record takes no lock, and
// nothing has to be destroyed when the library is unloaded.
struct Moment {
  std::time_t second = -1;
  unsigned folderChanges = 0;
  std::array<char, 64> stamp{};
  std::array<char, 4096 + 128> path{};
  std::size_t folderLength = 0;
};

std::string stampOf(const std::tm& time) {
  std::array<char, 64> text{};
  std::snprintf(text.data(), text.size(), "%04d-%02d-%02d %02d:%02d:%02d", time.tm_year + 1900,
                time.tm_mon + 1, time.tm_mday, time.tm_hour, time.tm_min, time.tm_sec);
  return text.data();
}

std::string chosenFolder() {
  const std::lock_guard lock(gFolderMutex);
  return gFolder.data();
}

std::string logFolder() {
  std::string chosen = chosenFolder();
  if (!chosen.empty()) return chosen;
  return platform::executableFolder() + "log" + platform::kPathSeparator;
}

void refresh(Moment& moment, std::time_t second, unsigned folderChanges) {
  const std::tm time = platform::localTime(second);
  std::snprintf(moment.stamp.data(), moment.stamp.size(), "%s", stampOf(time).c_str());
  if (moment.second == -1 || moment.folderChanges != folderChanges) {
    moment.folderLength = std::min(logFolder().copy(moment.path.data(), 4096), std::size_t{4096});
  }
  std::snprintf(moment.path.data() + moment.folderLength, moment.path.size() - moment.folderLength,
                "tovisdk_%d-%02d-%02d.txt", time.tm_year + 1900, time.tm_mon + 1, time.tm_mday);
  moment.second = second;
  moment.folderChanges = folderChanges;
}

const Moment& currentMoment() {
  thread_local Moment moment;
  const std::time_t second = platform::now();
  const unsigned folderChanges = gFolderChanges.load(std::memory_order_acquire);
  if (moment.second != second || moment.folderChanges != folderChanges) {
    refresh(moment, second, folderChanges);
  }
  return moment;
}

const char* levelWord(Level level) {
  switch (level) {
    case Level::Info:
      return "info";
    case Level::Debug:
      return "debug";
    case Level::Warning:
      return "warn";
    case Level::Error:
      return "error";
  }
  return "";
}

// The folder is made only once a record could not be written, which spares each record the question
// whether it is there.
void append(const Moment& moment, std::string_view record) {
  const std::string path = moment.path.data();
  if (platform::appendText(path, record)) return;
  if (platform::makeFolder(path.substr(0, moment.folderLength))) platform::appendText(path, record);
}

// The pattern of a record ends its line, and the writing ends it once more: an empty line stands
// between records.
void writeRecord(Level level, std::string_view message) {
  const Moment& moment = currentMoment();
  std::string record;
  record.reserve(message.size() + 40);
  record.append(moment.stamp.data()).append(" ").append(levelWord(level)).append(" ");
  record.append(message).append("\n\n");
  append(moment, record);
}

}  // namespace

void write(Level level, const char* format, std::va_list arguments) {
  if (gThreshold.load(std::memory_order_relaxed) > static_cast<int>(level)) return;
  std::va_list again;
  va_copy(again, arguments);
  std::array<char, kShortMessageSize> brief;
  const int length = std::vsnprintf(brief.data(), brief.size(), format, arguments);
  if (length < 0) {
    writeRecord(level, format);
  } else if (static_cast<std::size_t>(length) < brief.size()) {
    writeRecord(level, {brief.data(), static_cast<std::size_t>(length)});
  } else {
    const std::unique_ptr<char[]> whole(new char[kMessageSize]);
    std::vsnprintf(whole.get(), kMessageSize, format, again);
    writeRecord(level, whole.get());
  }
  va_end(again);
}

void info(const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  write(Level::Info, format, arguments);
  va_end(arguments);
}

void warning(const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  write(Level::Warning, format, arguments);
  va_end(arguments);
}

void error(const char* format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  write(Level::Error, format, arguments);
  va_end(arguments);
}

const char* shownKey(const char* key) {
  return gRedact.load(std::memory_order_relaxed) ? "********" : key;
}

}  // namespace tovi::log

void tovi_debug(std::string format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  tovi::log::write(tovi::log::Level::Debug, format.c_str(), arguments);
  va_end(arguments);
}

void tovi_info(std::string format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  tovi::log::write(tovi::log::Level::Info, format.c_str(), arguments);
  va_end(arguments);
}

void tovi_warnning(std::string format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  tovi::log::write(tovi::log::Level::Warning, format.c_str(), arguments);
  va_end(arguments);
}

void tovi_error(std::string format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  tovi::log::write(tovi::log::Level::Error, format.c_str(), arguments);
  va_end(arguments);
}

std::string get_current_time_s() {
  return tovi::log::stampOf(tovi::platform::localTime(tovi::platform::now()));
}

void tovi_set_log_level(int level) { tovi::log::gThreshold = level; }

void tovi_set_log_folder(const char* folder) {
  std::string chosen = folder == nullptr ? "" : folder;
  if (chosen.size() > tovi::log::kMaxFolder) {
    tovi::log::error("tovi_set_log_folder folder is longer than %d bytes",
                     static_cast<int>(tovi::log::kMaxFolder));
    return;
  }
  if (!chosen.empty() && chosen.back() != '/' && chosen.back() != tovi::platform::kPathSeparator) {
    chosen += tovi::platform::kPathSeparator;
  }
  const std::lock_guard lock(tovi::log::gFolderMutex);
  std::memcpy(tovi::log::gFolder.data(), chosen.c_str(), chosen.size() + 1);
  tovi::log::gFolderChanges.fetch_add(1, std::memory_order_release);
}

void tovi_set_log_redaction(bool redact) { tovi::log::gRedact = redact; }
