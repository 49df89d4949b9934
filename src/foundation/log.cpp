// SPDX-License-Identifier: MIT
// Hosts in other languages put any byte where C++ has a bool; here it is read as the byte it is.
#if defined(__clang__)
#pragma clang diagnostic ignored "-Wkeyword-macro"
#endif
#define bool unsigned char
#include <tovisdk/log_control.h>
#undef bool

#include <tovisdk/log.h>

#include "foundation/log.h"

#include <array>
#include <atomic>
#include <cstdio>
#include <cstring>
#include <exception>
#include <iostream>
#include <memory>
#include <mutex>
#include <new>
#include <string_view>

#include "foundation/log_file.h"
#include "foundation/memory.h"

namespace tovi::log {
namespace {

constexpr std::size_t kMessageSize = 65535;  // a message's room, its closing zero included
constexpr std::size_t kShortMessageSize = 1024;

std::atomic<int> gThreshold{0};
std::atomic<bool> gRedact{false};
std::atomic<bool> gConsole{true};

// Where the host wants records, if not in a file.
struct Callback {
  void (*record)(void* user, int level, const char* text) = nullptr;
  void* user = nullptr;
};
std::mutex gCallbackMutex;
Callback gCallback;
std::atomic<bool> gHasCallback{false};

Callback callback() {
  const std::lock_guard lock(gCallbackMutex);
  return gCallback;
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

// A callback that makes the library log would be called for ever.
void handOver(const Callback& callback, Level level, const char* message) {
  thread_local bool inside = false;
  if (inside) return;
  inside = true;
  callback.record(callback.user, static_cast<int>(level), message);
  inside = false;
}

// The message ends at its first zero byte.
void writeRecord(Level level, const char* message) {
  if (gHasCallback.load(std::memory_order_acquire)) {
    const Callback host = callback();
    if (host.record != nullptr) return handOver(host, level, message);
  }
  writeToFile(levelWord(level), message);
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
    writeRecord(level, brief.data());
  } else {
    const std::unique_ptr<char[]> whole(new (std::nothrow) char[kMessageSize]);
    if (whole != nullptr) std::vsnprintf(whole.get(), kMessageSize, format, again);
    writeRecord(level, whole != nullptr ? whole.get() : brief.data());
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

void print(std::string_view line) {
  if (!gConsole.load(std::memory_order_relaxed)) return;
  try {
    // With its end in one piece: several threads print.
    std::array<char, 64> whole;
    const std::size_t size = line.copy(whole.data(), whole.size() - 1);
    whole[size] = '\n';
    std::cout.write(whole.data(), static_cast<std::streamsize>(size + 1)).flush();
  } catch (const std::exception&) {
    // A host may let its streams throw; no line is worth that.
  }
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
  return tovi::whereMemoryAllows(std::string(), tovi::log::currentStamp);
}

void tovi_set_log_level(int level) { tovi::log::gThreshold = level; }

void tovi_set_log_redaction(unsigned char redact) { tovi::log::gRedact = redact != 0; }

void tovi_set_log_callback(void (*record)(void* user, int level, const char* text), void* user) {
  const std::lock_guard lock(tovi::log::gCallbackMutex);
  tovi::log::gCallback = {record, user};
  tovi::log::gHasCallback.store(record != nullptr, std::memory_order_release);
}

void tovi_set_console(int on) { tovi::log::gConsole = on != 0; }
