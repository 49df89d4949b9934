// SPDX-License-Identifier: MIT
#include "platform/console.h"

#include <windows.h>

#include <shellapi.h>  // wants the former

#include <fcntl.h>
#include <io.h>

#include <cstdlib>

#include "platform/win32/wide.h"

namespace tovi::platform {

namespace {

bool pointAtNothing(int descriptor) {
  const int nothing = ::_open("NUL", _O_WRONLY | _O_NOINHERIT);
  if (nothing < 0) return false;
  const bool pointed = ::_dup2(nothing, descriptor) == 0;
  ::_close(nothing);
  return pointed;
}

UINT gConsoleCodePage = 0;

void restoreConsole() { ::SetConsoleOutputCP(gConsoleCodePage); }

}  // namespace

// The words that main is given are in the local code page, which may lack what was typed, and have
// had their wildcards replaced.
std::vector<std::string> commandLineWords(int count, const char* const* words) {
  int wideCount = 0;
  wchar_t** const wideWords = ::CommandLineToArgvW(::GetCommandLineW(), &wideCount);
  if (wideWords == nullptr) return {words, words + count};
  std::vector<std::string> result;
  for (int i = 0; i < wideCount; ++i)
    result.push_back(fromWide(CP_UTF8, wideWords[i]).value_or(""));
  ::LocalFree(wideWords);
  return result;
}

void showUtf8() {
  // The code page is the console's, not the process's: others go on using it.
  gConsoleCodePage = ::GetConsoleOutputCP();
  if (gConsoleCodePage == 0 || gConsoleCodePage == CP_UTF8) return;
  if (::SetConsoleOutputCP(CP_UTF8)) std::atexit(restoreConsole);
}

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
