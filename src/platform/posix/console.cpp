// SPDX-License-Identifier: MIT
#include "platform/console.h"

#include <fcntl.h>
#include <unistd.h>

namespace tovi::platform {

namespace {

bool pointAtNothing(int descriptor) {
  const int nothing = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
  if (nothing < 0) return false;
  const bool pointed = ::dup2(nothing, descriptor) >= 0;
  ::close(nothing);
  return pointed;
}

}  // namespace

std::vector<std::string> commandLineWords(int count, const char* const* words) {
  return {words, words + count};
}

void showUtf8() {}

std::FILE* takeStandardOutput() {
  std::fflush(stdout);
  // Above the standard streams, even where one of those is closed.
  const int real = ::fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
  if (real < 0) return nullptr;
  std::FILE* stream = ::fdopen(real, "w");
  if (stream == nullptr) {
    ::close(real);
    return nullptr;
  }
  if (!pointAtNothing(STDOUT_FILENO)) {
    std::fclose(stream);
    return nullptr;
  }
  return stream;
}

bool isTerminal(std::FILE* stream) { return stream != nullptr && ::isatty(::fileno(stream)) == 1; }

}  // namespace tovi::platform
