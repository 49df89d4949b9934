// SPDX-License-Identifier: MIT
#include "tests/support/run_program.h"

#include <windows.h>

#include <algorithm>
#include <iterator>

#include "platform/paths.h"

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

}  // namespace

int runProgram(const std::string& program, const std::vector<std::string>& words,
               const Streams& streams) {
  std::wstring line = quoted(wide(program));
  for (const std::string& word : words) line += L' ' + quoted(wide(word));

  STARTUPINFOW start{};
  start.cb = sizeof start;
  start.dwFlags = STARTF_USESTDHANDLES;
  start.hStdInput = open(streams.in.empty() ? "NUL" : streams.in, GENERIC_READ, OPEN_EXISTING);
  start.hStdOutput = open(streams.out, GENERIC_WRITE, CREATE_ALWAYS);
  start.hStdError = open(streams.err, GENERIC_WRITE, CREATE_ALWAYS);
  const HANDLE handles[] = {start.hStdInput, start.hStdOutput, start.hStdError};
  // With a stream that is none the program would run all the same, and what it says be lost.
  const bool usable = std::none_of(std::begin(handles), std::end(handles),
                                   [](HANDLE handle) { return handle == INVALID_HANDLE_VALUE; });
  PROCESS_INFORMATION child{};
  const bool started = usable && ::CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0,
                                                  nullptr, nullptr, &start, &child) != FALSE;
  for (const HANDLE handle : handles) {
    if (handle != INVALID_HANDLE_VALUE) ::CloseHandle(handle);
  }
  if (!started) return -1;
  ::WaitForSingleObject(child.hProcess, INFINITE);
  DWORD status = 0;
  const BOOL known = ::GetExitCodeProcess(child.hProcess, &status);
  ::CloseHandle(child.hThread);
  ::CloseHandle(child.hProcess);
  return known ? static_cast<int>(status) : -1;
}

}  // namespace tovi::test
