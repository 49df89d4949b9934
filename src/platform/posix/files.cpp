// SPDX-License-Identifier: MIT
#include "platform/files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace tovi::platform {

extern const char kPathSeparator = '/';

namespace {

bool writeAll(int descriptor, std::string_view text) {
  while (!text.empty()) {
    const ssize_t written = ::write(descriptor, text.data(), text.size());
    if (written > 0) {
      text.remove_prefix(static_cast<std::size_t>(written));
    } else if (written == 0 || errno != EINTR) {
      return false;
    }
  }
  return true;
}

}  // namespace

bool endsWithSeparator(const char* path) {
  return *path != '\0' && path[std::strlen(path) - 1] == kPathSeparator;
}

bool appendText(const char* path, std::string_view text) {
  int descriptor = -1;
  do {
    descriptor = ::open(path, O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0600);
  } while (descriptor < 0 && errno == EINTR);
  if (descriptor < 0) return false;
  const bool written = writeAll(descriptor, text);
  ::close(descriptor);
  return written;
}

bool makeFolder(const char* path) {
  if (::mkdir(path, 0777) == 0) return true;
  struct stat status {};
  return ::stat(path, &status) == 0 && S_ISDIR(status.st_mode);
}

long long fileSize(const char* path) {
  struct stat status {};
  return ::stat(path, &status) == 0 ? status.st_size : 0;
}

bool renameFile(const char* from, const char* to) { return std::rename(from, to) == 0; }

}  // namespace tovi::platform
