// SPDX-License-Identifier: MIT
#include "tests/support/run_program.h"

#include <windows.h>

#include <algorithm>
#include <iterator>

#include "platform/paths.h"
#include "platform/system.h"

namespace tovi::test {
namespace {

std::wstring wide(const std::string& utf8) { return platform::pathOf(utf8).wstring(); }

// As the C runtime takes a command line apart.
std::wstring quoted(const std::wstring& word) {
  std::wstring result = L"\"";
  std::size_t backslashes = 0;
  for (const wchar_t c : word) {
    if (c == L'"') result.append(backslashes + 1, L'\\');
    backslashes = c == L'\\' ? backslashes + 1 : 0;
    result += c;
  }
  return result.append(backslashes, L'\\') + L'"';
}

HANDLE open(const std::string& path, DWORD access, DWORD creation) {
  SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
  return ::CreateFileW(wide(path).c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited,
                       creation, FILE_ATTRIBUTE_NORMAL, nullptr);
}

// False when nothing was started: with a stream that is none the program would run all the same,
// and what it says be lost.
bool startProgram(std::wstring line, const Streams& streams, PROCESS_INFORMATION& child) {
  STARTUPINFOW start{};
  start.cb = sizeof start;
  start.dwFlags = STARTF_USESTDHANDLES;
  start.hStdInput = open(streams.in.empty() ? "NUL" : streams.in, GENERIC_READ, OPEN_EXISTING);
  start.hStdOutput = open(streams.out, GENERIC_WRITE, CREATE_ALWAYS);
  start.hStdError = open(streams.err, GENERIC_WRITE, CREATE_ALWAYS);
  const HANDLE handles[] = {start.hStdInput, start.hStdOutput, start.hStdError};
  const bool usable = std::none_of(std::begin(handles), std::end(handles),
                                   [](HANDLE handle) { return handle == INVALID_HANDLE_VALUE; });
  const bool started = usable && ::CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0,
                                                  nullptr, nullptr, &start, &child) != FALSE;
  for (const HANDLE handle : handles) {
    if (handle != INVALID_HANDLE_VALUE) ::CloseHandle(handle);
  }
  return started;
}

}  // namespace

int runProgram(const std::string& program, const std::vector<std::string>& words,
               const Streams& streams) {
  std::wstring line = quoted(wide(program));
  for (const std::string& word : words) line += L' ' + quoted(wide(word));
  PROCESS_INFORMATION child{};
  // Under load Wine now and then refuses to start one.
  for (int attempts = 20; !startProgram(line, streams, child); platform::pauseFor(100)) {
    if (--attempts == 0) return -1;
  }
  ::WaitForSingleObject(child.hProcess, INFINITE);
  DWORD status = 0;
  const BOOL known = ::GetExitCodeProcess(child.hProcess, &status);
  ::CloseHandle(child.hThread);
  ::CloseHandle(child.hProcess);
  return known ? static_cast<int>(status) : -1;
}

}  // namespace tovi::test
