// SPDX-License-Identifier: MIT
#include "platform/files.h"

#include <windows.h>

#include <algorithm>
#include <climits>
#include <cstring>
#include <string>

#include "platform/win32/wide.h"

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

// Room for a name of the old form, 8.3, in a folder whose path is as long as paths used to be.
constexpr std::size_t kShortPath = MAX_PATH - 12;

// A path in the form that may be of any length; nothing when the text is none of the code page.
std::optional<std::wstring> anyLength(const char* path) {
  std::optional<std::wstring> wide = toWide(CP_ACP, path);
  if (!wide || wide->size() < kShortPath || wide->substr(1, 1) != L":") return wide;
  std::replace(wide->begin(), wide->end(), L'/', L'\\');  // in that form nobody else does
  return L"\\\\?\\" + *wide;
}

}  // namespace

bool endsWithSeparator(const char* path) {
  const char* last = ::CharPrevA(path, path + std::strlen(path));
  return *last == kPathSeparator || *last == '/';
}

bool appendText(const char* path, std::string_view text) {
  const std::string record = withSystemLineEnds(text);
  const std::optional<std::wstring> wide = anyLength(path);
  if (!wide || record.size() > INT_MAX) return false;
  // With the right to append alone, each write goes to the end, wherever other writers have moved
  // it in the meantime.
  const HANDLE file = ::CreateFileW(wide->c_str(), FILE_APPEND_DATA,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return false;
  const DWORD size = static_cast<DWORD>(record.size());
  DWORD written = 0;
  const bool done = ::WriteFile(file, record.data(), size, &written, nullptr) && written == size;
  ::CloseHandle(file);
  return done;
}

bool makeFolder(const char* path) {
  const std::optional<std::wstring> wide = anyLength(path);
  if (!wide) return false;
  if (::CreateDirectoryW(wide->c_str(), nullptr) != 0) return true;
  const DWORD attributes = ::GetFileAttributesW(wide->c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

long long fileSize(const char* path) {
  const std::optional<std::wstring> wide = anyLength(path);
  WIN32_FILE_ATTRIBUTE_DATA data{};
  if (!wide || ::GetFileAttributesExW(wide->c_str(), GetFileExInfoStandard, &data) == 0) return 0;
  return static_cast<long long>(data.nFileSizeHigh) << 32 | data.nFileSizeLow;
}

bool renameFile(const char* from, const char* to) {
  const std::optional<std::wstring> wideFrom = anyLength(from);
  const std::optional<std::wstring> wideTo = anyLength(to);
  return wideFrom && wideTo &&
         ::MoveFileExW(wideFrom->c_str(), wideTo->c_str(), MOVEFILE_REPLACE_EXISTING) != 0;
}

}  // namespace tovi::platform
