// SPDX-License-Identifier: MIT
#include "platform/files.h"

#include <direct.h>
#include <windows.h>

#include <climits>
#include <cstring>
#include <string>

namespace tovi::platform {

extern const char kPathSeparator = '\\';

namespace {

std::string withSystemLineEnds(std::string_view text) {
  std::string result;
  result.reserve(text.size() + 16);
  for (const char c : text) {
    if (c == '\n') result += '\r';
    result += c;
  }
  return result;
}

}  // namespace

bool endsWithSeparator(const char* path) {
  const char* last = ::CharPrevA(path, path + std::strlen(path));
  return *last == kPathSeparator || *last == '/';
}

bool appendText(const char* path, std::string_view text) {
  const std::string record = withSystemLineEnds(text);
  if (record.size() > INT_MAX) return false;
  // With the right to append alone, each write goes to the end, wherever other writers have moved
  // it in the meantime.
  const HANDLE file =
      ::CreateFileA(path, FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                    nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return false;
  const DWORD size = static_cast<DWORD>(record.size());
  DWORD written = 0;
  const bool done = ::WriteFile(file, record.data(), size, &written, nullptr) && written == size;
  ::CloseHandle(file);
  return done;
}

bool makeFolder(const char* path) {
  if (::_mkdir(path) == 0) return true;
  // _access would take a file of that name for a folder.
  const DWORD attributes = ::GetFileAttributesA(path);
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

long long fileSize(const char* path) {
  WIN32_FILE_ATTRIBUTE_DATA data{};
  if (::GetFileAttributesExA(path, GetFileExInfoStandard, &data) == 0) return 0;
  return static_cast<long long>(data.nFileSizeHigh) << 32 | data.nFileSizeLow;
}

bool renameFile(const char* from, const char* to) {
  return ::MoveFileExA(from, to, MOVEFILE_REPLACE_EXISTING) != 0;
}

}  // namespace tovi::platform
