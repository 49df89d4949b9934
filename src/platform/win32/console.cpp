#include "platform/console.h"

#include <fcntl.h>
#include <io.h>

namespace tovi::platform {

namespace {

bool pointAtNothing(int descriptor) {
  const int nothing = ::_open("NUL", _O_WRONLY | _O_NOINHERIT);
  if (nothing < 0) return false;
  const bool pointed = ::_dup2(nothing, descriptor) == 0;
  ::_close(nothing);
  return pointed;
}

}  // namespace

std::FILE* takeStandardOutput() {
  std::fflush(stdout);
  // Negative in a program without a console or a redirection.
  const int standard = ::_fileno(stdout);
  const int real = standard < 0 ? -1 : ::_dup(standard);
  if (real < 0) return nullptr;
  // Results are written as they are, not with their line ends changed.
  ::_setmode(real, _O_BINARY);
  std::FILE* stream = ::_fdopen(real, "wb");
  if (stream == nullptr) {
    ::_close(real);
    return nullptr;
  }
  if (!pointAtNothing(standard)) {
    std::fclose(stream);
    return nullptr;
  }
  return stream;
}

bool isTerminal(std::FILE* stream) {
  return stream != nullptr && ::_isatty(::_fileno(stream)) != 0;
}

}  // namespace tovi::platform
