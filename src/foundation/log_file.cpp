// SPDX-License-Identifier: MIT
#include "foundation/log_file.h"

#include <tovisdk/log_control.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdio>
#include <cstring>
#include <memory>
#include <mutex>
#include <new>
#include <utility>

#include "foundation/log.h"
#include "platform/files.h"
#include "platform/system.h"

namespace tovi::log {
namespace {

constexpr std::size_t kMaxFolder = 1000;
constexpr std::size_t kStampSize = 64;
constexpr std::size_t kPathSize = 4096 + 128;
constexpr std::size_t kShortRecord = 2048;

// The folder that the host chose (empty: the default), and how often it changed.
std::mutex gFolderMutex;
std::array<char, kMaxFolder + 2> gFolder{};
std::atomic<unsigned> gFolderChanges{0};

std::atomic<long long> gLimit{0};
std::mutex gLimitMutex;

// What records of one second share. Plain arrays, one per thread: a record takes no lock, and
// nothing has to be destroyed when the library is unloaded.
struct Moment {
  std::time_t second = -1;
  unsigned folderChanges = 0;
  std::array<char, kStampSize> stamp{};
  std::array<char, kPathSize> path{};
  std::size_t folderLength = 0;  // 0: nowhere to write
};

void stampInto(std::array<char, kStampSize>& stamp, const std::tm& time) {
  std::snprintf(stamp.data(), stamp.size(), "%04d-%02d-%02d %02d:%02d:%02d", time.tm_year + 1900,
                time.tm_mon + 1, time.tm_mday, time.tm_hour, time.tm_min, time.tm_sec);
}

// Empty where the executable's folder is not known.
std::string logFolder() {
  {
    const std::lock_guard lock(gFolderMutex);
    if (gFolder[0] != '\0') return gFolder.data();
  }
  const std::string own = platform::executableFolder();
  return own.empty() ? own : own + "log" + platform::kPathSeparator;
}

void refresh(Moment& moment, std::time_t second, unsigned folderChanges) {
  const std::tm time = platform::localTime(second);
  stampInto(moment.stamp, time);
  if (moment.second == -1 || moment.folderChanges != folderChanges) {
    const std::string folder = logFolder();
    moment.folderLength =
        folder.size() > kPathSize - 128 ? 0 : folder.copy(moment.path.data(), kPathSize);
  }
  std::snprintf(moment.path.data() + moment.folderLength, moment.path.size() - moment.folderLength,
                "tovisdk_%d-%02d-%02d.txt", time.tm_year + 1900, time.tm_mon + 1, time.tm_mday);
  moment.second = second;
  moment.folderChanges = folderChanges;
}

Moment& currentMoment() {
  thread_local Moment moment;
  const std::time_t second = platform::now();
  const unsigned folderChanges = gFolderChanges.load(std::memory_order_acquire);
  if (moment.second != second || moment.folderChanges != folderChanges) {
    refresh(moment, second, folderChanges);
  }
  return moment;
}

// The name of the day's file before its extension, and what it is called when it is set aside.
void setAside(const char* path) {
  constexpr std::size_t kExtension = sizeof ".txt" - 1;
  std::array<char, kPathSize + 8> aside{};
  const int stem = static_cast<int>(std::strlen(path) - kExtension);
  std::snprintf(aside.data(), aside.size(), "%.*s.1.txt", stem, path);
  platform::renameFile(path, aside.data());
}

// The folder is made only once a record could not be written, which spares each record the question
// whether it is there.
void append(Moment& moment, std::string_view record) {
  const char* path = moment.path.data();
  if (platform::appendText(path, record)) return;
  const char after = std::exchange(moment.path[moment.folderLength], '\0');
  const bool made = platform::makeFolder(path);
  moment.path[moment.folderLength] = after;
  if (made) platform::appendText(path, record);
}

void appendWithin(long long limit, Moment& moment, std::string_view record) {
  // One thread at a time, or two would set the file aside.
  const std::lock_guard lock(gLimitMutex);
  const long long size = platform::fileSize(moment.path.data());
  if (size > 0 && size + static_cast<long long>(record.size()) > limit) {
    setAside(moment.path.data());
  }
  append(moment, record);
}

// The pattern of a record ends its line, and the writing ends it once more: an empty line stands
// between records.
std::size_t compose(char* record, std::size_t room, const Moment& moment, const char* levelWord,
                    std::string_view message) {
  const int length = std::snprintf(record, room, "%s %s %.*s\n\n", moment.stamp.data(), levelWord,
                                   static_cast<int>(message.size()), message.data());
  return length < 0 ? 0 : std::min(static_cast<std::size_t>(length), room - 1);
}

}  // namespace

void writeToFile(const char* levelWord, std::string_view message) {
  try {
    Moment& moment = currentMoment();
    if (moment.folderLength == 0) return;
    std::array<char, kShortRecord> brief;
    std::unique_ptr<char[]> whole;
    char* record = brief.data();
    std::size_t room = brief.size();
    if (message.size() + kStampSize + 16 > room) {
      room = message.size() + kStampSize + 16;
      whole.reset(new char[room]);
      record = whole.get();
    }
    const std::string_view text(record, compose(record, room, moment, levelWord, message));
    const long long limit = gLimit.load(std::memory_order_relaxed);
    if (limit > 0) {
      appendWithin(limit, moment, text);
    } else {
      append(moment, text);
    }
  } catch (const std::bad_alloc&) {
    // The record is lost, as one is that finds its disk full.
  }
}

std::string currentStamp() {
  std::array<char, kStampSize> stamp{};
  stampInto(stamp, platform::localTime(platform::now()));
  return stamp.data();
}

}  // namespace tovi::log

using namespace tovi::log;

void tovi_set_log_folder(const char* folder) {
  const std::string_view chosen = folder == nullptr ? "" : folder;
  if (chosen.size() > kMaxFolder) {
    error("tovi_set_log_folder folder is longer than %d bytes", static_cast<int>(kMaxFolder));
    return;
  }
  const std::lock_guard lock(gFolderMutex);
  std::size_t length = chosen.copy(gFolder.data(), chosen.size());
  gFolder[length] = '\0';
  if (!chosen.empty() && !tovi::platform::endsWithSeparator(gFolder.data())) {
    gFolder[length++] = tovi::platform::kPathSeparator;
    gFolder[length] = '\0';
  }
  gFolderChanges.fetch_add(1, std::memory_order_release);
}

void tovi_set_log_limit(long long bytes) { gLimit = bytes; }
